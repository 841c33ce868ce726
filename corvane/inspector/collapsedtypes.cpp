#include "collapsedtypes.h"

#include "descriptions.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "messagetreewidget.h"

#include <QSettings>

namespace corvane {

namespace {

constexpr qsizetype mostTypes = 5000;

QString key()
{
    return QStringLiteral("tree/collapsedMessages");
}

QString pathOf(const FormatInfo &format, const MessageInfo &type)
{
    return format.getName() + QLatin1Char('.') + type.getName();
}

} // namespace

void saveCollapsedTypes(QSettings &settings, const FormatInfo &format)
{
    QStringList paths = settings.value(key()).toStringList();
    for (const auto &type : format.getData()->messages) {
        const QString path = pathOf(format, *type);
        paths.removeAll(path);
        if (!MessageTreeWidget::sMessageInfoExpandedCollapsedMap.value(type.get(), true))
            paths.append(path);
    }
    settings.setValue(key(), paths.mid(qMax(0, paths.size() - mostTypes)));
}

void restoreCollapsedTypes(const QSettings &settings, const FormatInfo &format)
{
    const QStringList paths = settings.value(key()).toStringList();
    for (const auto &type : format.getData()->messages)
        if (paths.contains(pathOf(format, *type)))
            MessageTreeWidget::sMessageInfoExpandedCollapsedMap[type.get()] = false;
}

} // namespace corvane
