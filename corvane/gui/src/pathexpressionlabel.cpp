#include "pathexpressionlabel.h"

#include "memleaktracer.h"
#include "translations.h"

PathExpressionLabel::PathExpressionLabel(PathExpression *pathExpression,
                                         PathExpression::Parts parts,
                                         QWidget *parent)
    : QLabel(parent)
{
    corvane::installTranslations();
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("PathExpressionLabel"));
    setPathExpression(pathExpression);
    setParts(parts);
}

PathExpressionLabel::~PathExpressionLabel()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("PathExpressionLabel"));
}

void PathExpressionLabel::setPathExpression(PathExpression *pathExpression)
{
    if (this->pathExpression != nullptr)
        QObject::disconnect(this->pathExpression, nullptr, this, nullptr);
    this->pathExpression = pathExpression;
    if (pathExpression != nullptr)
        connect(pathExpression, SIGNAL(partsChanged(PathExpression::Parts)),
                SLOT(processPartsChanged(PathExpression::Parts)));
    updateLabel();
}

PathExpression *PathExpressionLabel::getPathExpression()
{
    return pathExpression;
}

void PathExpressionLabel::setParts(PathExpression::Parts parts)
{
    this->parts = parts;
    updateLabel();
}

PathExpression::Parts PathExpressionLabel::getParts() const
{
    return parts;
}

void PathExpressionLabel::processPartsChanged(PathExpression::Parts parts)
{
    if (this->parts & parts)
        updateLabel();
}

void PathExpressionLabel::updateLabel()
{
    setText(pathExpression != nullptr ? pathExpression->getString(parts)
                                      : tr("No path expression set!"));
}
