#include "pathexpressioncombobox.h"

#include "followedexpression.h"
#include "memleaktracer.h"
#include "translations.h"

#include <utility>

PathExpressionComboBox::PathExpressionComboBox(PathExpression *pathExpression,
                                               PathExpression::Parts parts,
                                               PathExpression *optionsSourcePathExpression,
                                               QWidget *parent)
    : QComboBox(parent)
    , parts(parts)
{
    corvane::installTranslations();
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("PathExpressionComboBox"));
    updateContents();
    setPathExpression(pathExpression);
    setOptionsSourcePathExpression(optionsSourcePathExpression != nullptr
                                       ? optionsSourcePathExpression
                                       : new PathExpression(this));
    connect(this, SIGNAL(currentIndexChanged(int)), SLOT(setPathExpressionFromCurrent()));
    setAllOptionEnabled(true, QStringLiteral("All"));
}

PathExpressionComboBox::~PathExpressionComboBox()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("PathExpressionComboBox"));
}

void PathExpressionComboBox::setPathExpression(PathExpression *pathExpression)
{
    corvane::follow(this->pathExpression, pathExpression, SIGNAL(expressionChanged(QString)), this);
    updateContents();
}

PathExpression *PathExpressionComboBox::getPathExpression()
{
    return pathExpression;
}

void PathExpressionComboBox::setOptionsSourcePathExpression(
    PathExpression *optionsSourcePathExpression)
{
    corvane::follow(this->optionsSourcePathExpression, optionsSourcePathExpression,
                    SIGNAL(matchesMayHaveChanged()), this);
    updateContents();
}

PathExpression *PathExpressionComboBox::getOptionsSourcePathExpression()
{
    return optionsSourcePathExpression;
}

void PathExpressionComboBox::setParts(PathExpression::Parts parts)
{
    this->parts = parts;
    updateContents();
}

PathExpression::Parts PathExpressionComboBox::getParts() const
{
    return parts;
}

void PathExpressionComboBox::setAllOptionEnabled(bool enabled, QString text)
{
    allOptionEnabled = enabled;
    allOptionText = std::move(text);
    updateContents();
}

bool PathExpressionComboBox::getAllOptionEnabled() const
{
    return allOptionEnabled;
}

void PathExpressionComboBox::updateContents()
{
    if (updatingExpression)
        return;
    updatingContents = true;
    while (count() > 0)
        removeItem(0);
    qsizetype current = 0;
    insertItems(0, getOptions(current));
    setCurrentIndex(static_cast<int>(current));
    updatingContents = false;
}

QStringList PathExpressionComboBox::getOptions(qsizetype &current) const
{
    if (pathExpression == nullptr)
        return {tr("Null path expression set!")};
    if (optionsSourcePathExpression == nullptr)
        return {tr("Null options source path expression set!")};
    QStringList options = optionsSourcePathExpression->getMatchingExpressionsStringList(parts);
    if (options.isEmpty())
        return {tr("No options")};
    const bool isWildCard = pathExpression->isWildCard(parts);
    if (isWildCard || allOptionEnabled)
        options.prepend(allOptionText);
    if (isWildCard)
        return options;
    const QString text = pathExpression->getString(parts);
    if (!options.contains(text))
        options.prepend(text);
    current = options.indexOf(text);
    return options;
}

void PathExpressionComboBox::setPathExpressionFromCurrent()
{
    const QString text = currentText();
    if (pathExpression == nullptr || updatingContents)
        return;
    updatingExpression = true;
    if (text == allOptionText)
        pathExpression->setWildCard(parts);
    else
        pathExpression->setString(text, parts);
    pathExpression->completeEditing();
    updatingExpression = false;
}
