#pragma once

#include "corvanegui_export.h"
#include "pathexpression.h"

#include <QLabel>

/** Shows the text of chosen parts of a path expression and follows its changes. */
class CORVANEGUI_EXPORT PathExpressionLabel : public QLabel
{
    Q_OBJECT

public:
    /** \a pathExpression is not owned; null shows that there is none. */
    PathExpressionLabel(PathExpression *pathExpression,
                        PathExpression::Parts parts,
                        QWidget *parent = nullptr);
    ~PathExpressionLabel() override;

    void setPathExpression(PathExpression *pathExpression);
    PathExpression *getPathExpression();
    void setParts(PathExpression::Parts parts);
    PathExpression::Parts getParts() const;

public Q_SLOTS:
    void processPartsChanged(PathExpression::Parts parts);
    void updateLabel();

private:
    PathExpression *pathExpression = nullptr; ///< Not owned.
    PathExpression::Parts parts;
};
