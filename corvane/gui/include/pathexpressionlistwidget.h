#pragma once

#include "corvanegui_export.h"
#include "pathexpression.h"

#include <QListWidget>

/**
 * Lets people choose the text of chosen parts of a path expression, out of what another expression,
 * the source of the options, matches.
 *
 * The row that shows the expression's own text is chosen for it, which writes the text into the
 * expression again and completes an edit that is going on.
 */
class CORVANEGUI_EXPORT PathExpressionListWidget : public QListWidget
{
    Q_OBJECT

public:
    /**
     * \a pathExpression: what is edited; not owned, may be null.
     * \a optionsSourcePathExpression: not owned; with null the list makes one of its own, which
     *    matches everything.
     */
    PathExpressionListWidget(PathExpression *pathExpression,
                             PathExpression::Parts parts,
                             PathExpression *optionsSourcePathExpression,
                             QWidget *parent = nullptr);
    ~PathExpressionListWidget() override;

    void setPathExpression(PathExpression *pathExpression);
    PathExpression *getPathExpression();
    void setOptionsSourcePathExpression(PathExpression *optionsSourcePathExpression);
    PathExpression *getOptionsSourcePathExpression();
    void setParts(PathExpression::Parts parts);
    PathExpression::Parts getParts() const;

public Q_SLOTS:
    void updateContents();
    void setPathExpressionFromCurrent();

private:
    QStringList getOptions() const;

    PathExpression *pathExpression = nullptr; ///< Not owned.
    PathExpression *optionsSourcePathExpression = nullptr; ///< A child where the list made it.
    PathExpression::Parts parts;
    bool updatingExpression = false;
};
