#pragma once

#include "corvanegui_export.h"
#include "pathexpression.h"

#include <QLineEdit>

/**
 * Lets people edit chosen parts of a path expression: each keystroke gives the expression the text
 * so far as a prefix, Return completes it. While the editor has the focus, its text is theirs.
 */
class CORVANEGUI_EXPORT PathExpressionLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /** \a pathExpression is not owned; null shows that there is none. */
    PathExpressionLineEdit(PathExpression *pathExpression,
                           PathExpression::Parts parts,
                           QWidget *parent = nullptr);
    ~PathExpressionLineEdit() override;

    /** Return completes as often as an expression other than null has been set here. */
    void setPathExpression(PathExpression *pathExpression);
    PathExpression *getPathExpression();
    void setParts(PathExpression::Parts parts);
    PathExpression::Parts getParts() const;

public Q_SLOTS:
    void processPartsChanged(PathExpression::Parts parts);
    void processReturnPressed();
    void processTextEdited();
    void updateText();

private:
    PathExpression *pathExpression = nullptr; ///< Not owned.
    PathExpression::Parts parts;
};
