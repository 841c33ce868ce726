#include "pathexpressionlistwidget.h"

#include "followedexpression.h"
#include "memleaktracer.h"
#include "translations.h"

PathExpressionListWidget::PathExpressionListWidget(PathExpression *pathExpression,
                                                   PathExpression::Parts parts,
                                                   PathExpression *optionsSourcePathExpression,
                                                   QWidget *parent)
    : QListWidget(parent)
    , parts(parts)
{
    corvane::installTranslations();
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("PathExpressionListWidget"));
    updateContents();
    setPathExpression(pathExpression);
    setOptionsSourcePathExpression(optionsSourcePathExpression != nullptr
                                       ? optionsSourcePathExpression
                                       : new PathExpression(this));
    connect(this, SIGNAL(itemClicked(QListWidgetItem *)), SLOT(setPathExpressionFromCurrent()));
    connect(this, SIGNAL(currentItemChanged(QListWidgetItem *, QListWidgetItem *)),
            SLOT(setPathExpressionFromCurrent()));
}

PathExpressionListWidget::~PathExpressionListWidget()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("PathExpressionListWidget"));
}

void PathExpressionListWidget::setPathExpression(PathExpression *pathExpression)
{
    corvane::follow(this->pathExpression, pathExpression, SIGNAL(expressionChanged(QString)), this);
    updateContents();
}

PathExpression *PathExpressionListWidget::getPathExpression()
{
    return pathExpression;
}

void PathExpressionListWidget::setOptionsSourcePathExpression(
    PathExpression *optionsSourcePathExpression)
{
    corvane::follow(this->optionsSourcePathExpression, optionsSourcePathExpression,
                    SIGNAL(matchesMayHaveChanged()), this);
    updateContents();
}

PathExpression *PathExpressionListWidget::getOptionsSourcePathExpression()
{
    return optionsSourcePathExpression;
}

void PathExpressionListWidget::setParts(PathExpression::Parts parts)
{
    this->parts = parts;
    updateContents();
}

PathExpression::Parts PathExpressionListWidget::getParts() const
{
    return parts;
}

void PathExpressionListWidget::updateContents()
{
    if (updatingExpression)
        return;
    const QString current
        = pathExpression != nullptr ? pathExpression->getString(parts) : QString();
    setCurrentItem(nullptr);
    const QStringList options = getOptions();
    while (count() >= 1)
        delete takeItem(0);
    insertItems(count(), options);
    const qsizetype row = options.indexOf(current);
    if (pathExpression != nullptr && row >= 0)
        setCurrentRow(static_cast<int>(row));
}

QStringList PathExpressionListWidget::getOptions() const
{
    if (optionsSourcePathExpression == nullptr)
        return {tr("Null options source path expression set!")};
    const QStringList options
        = optionsSourcePathExpression->getMatchingExpressionsStringList(parts);
    return options.isEmpty() ? QStringList{tr("No options")} : options;
}

void PathExpressionListWidget::setPathExpressionFromCurrent()
{
    const QListWidgetItem *item = currentItem();
    if (pathExpression == nullptr || item == nullptr)
        return;
    const QString text = item->data(Qt::DisplayRole).toString();
    updatingExpression = true;
    pathExpression->setString(text, parts);
    pathExpression->completeEditing();
    updatingExpression = false;
}
