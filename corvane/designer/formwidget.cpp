#include "formwidget.h"

#include <QIcon>

namespace corvane {

FormWidget::FormWidget(const FormWidgetDescription &description, QObject *parent)
    : QObject(parent)
    , description(description)
{
}

QString FormWidget::name() const
{
    return QLatin1String(description.className);
}

QString FormWidget::group() const
{
    return QStringLiteral("Corvane");
}

QString FormWidget::toolTip() const
{
    return tr(description.toolTip);
}

QString FormWidget::whatsThis() const
{
    return toolTip();
}

QString FormWidget::includeFile() const
{
    return QLatin1String(description.header);
}

QIcon FormWidget::icon() const
{
    const QIcon drawing(QLatin1String(description.icon));
    // Designer passes over icons that tell no sizes, as a drawing does not.
    QIcon pictures;
    for (const int size : {22, 44})
        pictures.addPixmap(drawing.pixmap(QSize(size, size), 1.0));
    return pictures;
}

bool FormWidget::isContainer() const
{
    return false;
}

QWidget *FormWidget::createWidget(QWidget *parent)
{
    return description.create(parent);
}

bool FormWidget::isInitialized() const
{
    return initialized;
}

void FormWidget::initialize(QDesignerFormEditorInterface *)
{
    initialized = true;
}

QString FormWidget::domXml() const
{
    return QStringLiteral(
               R"(<ui language="c++" displayname="%1"><widget class="%2" name="%3"/></ui>)")
        .arg(name().section(QStringLiteral("::"), -1), name(),
             QLatin1String(description.objectName));
}

} // namespace corvane
