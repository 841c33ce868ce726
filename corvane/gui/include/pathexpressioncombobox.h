#pragma once

#include "corvanegui_export.h"
#include "pathexpression.h"

#include <QComboBox>

/**
 * Lets people choose the text of chosen parts of a path expression, out of what another expression,
 * the source of the options, matches; or, with an entry of its own, everything.
 */
class CORVANEGUI_EXPORT PathExpressionComboBox : public QComboBox
{
    Q_OBJECT

public:
    /**
     * \a pathExpression: what is edited; not owned, may be null.
     * \a optionsSourcePathExpression: not owned; with null the box makes one of its own, which
     *    matches everything.
     */
    PathExpressionComboBox(PathExpression *pathExpression,
                           PathExpression::Parts parts,
                           PathExpression *optionsSourcePathExpression,
                           QWidget *parent = nullptr);
    ~PathExpressionComboBox() override;

    void setPathExpression(PathExpression *pathExpression);
    PathExpression *getPathExpression();
    void setOptionsSourcePathExpression(PathExpression *optionsSourcePathExpression);
    PathExpression *getOptionsSourcePathExpression();
    void setParts(PathExpression::Parts parts);
    PathExpression::Parts getParts() const;
    /**
     * Whether an entry \a text stands for everything. It is shown all the same while the expression
     * does match everything.
     */
    void setAllOptionEnabled(bool enabled, QString text);
    bool getAllOptionEnabled() const;

public Q_SLOTS:
    void updateContents();
    void setPathExpressionFromCurrent();

private:
    /** The entries to show, and the index of the current one among them. */
    QStringList getOptions(qsizetype &current) const;

    PathExpression *pathExpression = nullptr; ///< Not owned.
    PathExpression *optionsSourcePathExpression = nullptr; ///< A child where the box made it.
    PathExpression::Parts parts;
    QString allOptionText;
    bool allOptionEnabled = false;
    bool updatingContents = false;
    bool updatingExpression = false;
};
