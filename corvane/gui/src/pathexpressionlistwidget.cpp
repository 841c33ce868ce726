#include "pathexpressionlistwidget.h"

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
    if (this->pathExpression != nullptr) {
        QObject::disconnect(this->pathExpression, nullptr, this, nullptr);
        QObject::disconnect(this, nullptr, this->pathExpression, nullptr);
    }
    this->pathExpression = pathExpression;
    if (pathExpression != nullptr)
        connect(pathExpression, SIGNAL(expressionChanged(QString)), SLOT(updateContents()));
    updateContents();
}

PathExpression *PathExpressionListWidget::getPathExpression()
{
    return pathExpression;
}

void PathExpressionListWidget::setOptionsSourcePathExpression(
    PathExpression *optionsSourcePathExpression)
{
    if (this->optionsSourcePathExpression != nullptr) {
        QObject::disconnect(this->optionsSourcePathExpression, nullptr, this, nullptr);
        QObject::disconnect(this, nullptr, this->optionsSourcePathExpression, nullptr);
    }
    this->optionsSourcePathExpression = optionsSourcePathExpression;
    if (optionsSourcePathExpression != nullptr)
        connect(optionsSourcePathExpression, SIGNAL(matchesMayHaveChanged()),
                SLOT(updateContents()));
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
