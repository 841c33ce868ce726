#include "pathexpressionlineedit.h"

#include "followedexpression.h"
#include "memleaktracer.h"
#include "translations.h"

PathExpressionLineEdit::PathExpressionLineEdit(PathExpression *pathExpression,
                                               PathExpression::Parts parts,
                                               QWidget *parent)
    : QLineEdit(parent)
{
    corvane::installTranslations();
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("PathExpressionLineEdit"));
    setPathExpression(pathExpression);
    setParts(parts);
    connect(this, SIGNAL(textEdited(QString)), SLOT(processTextEdited()));
}

PathExpressionLineEdit::~PathExpressionLineEdit()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("PathExpressionLineEdit"));
}

void PathExpressionLineEdit::setPathExpression(PathExpression *pathExpression)
{
    corvane::disconnectFrom(this->pathExpression, this);
    this->pathExpression = pathExpression;
    if (pathExpression != nullptr) {
        connect(pathExpression, SIGNAL(partsChanged(PathExpression::Parts)),
                SLOT(processPartsChanged(PathExpression::Parts)));
        // Once more for each expression, as hosts know it.
        connect(this, SIGNAL(returnPressed()), SLOT(processReturnPressed()));
    }
    updateText();
}

PathExpression *PathExpressionLineEdit::getPathExpression()
{
    return pathExpression;
}

void PathExpressionLineEdit::setParts(PathExpression::Parts parts)
{
    this->parts = parts;
    updateText();
}

PathExpression::Parts PathExpressionLineEdit::getParts() const
{
    return parts;
}

void PathExpressionLineEdit::processPartsChanged(PathExpression::Parts parts)
{
    if ((this->parts & parts) && !hasFocus())
        updateText();
}

void PathExpressionLineEdit::processReturnPressed()
{
    if (pathExpression == nullptr)
        return;
    pathExpression->setString(text(), parts);
    pathExpression->completeEditing();
}

void PathExpressionLineEdit::processTextEdited()
{
    if (pathExpression != nullptr)
        pathExpression->setStringPrefix(text(), parts);
}

void PathExpressionLineEdit::updateText()
{
    setText(pathExpression != nullptr ? pathExpression->getString(parts)
                                      : tr("No path expression set!"));
}
