#include "viewsettings.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QSettings>

#include <algorithm>
#include <array>
#include <iterator>

namespace corvane {

namespace {

constexpr std::array zooms{50, 67, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};

struct RefreshText
{
    int ms;
    const char *text;
};

constexpr std::array refreshTexts{
    RefreshText{100, QT_TRANSLATE_NOOP("corvane::ViewSettings", "10 Times a Second")},
    RefreshText{250, QT_TRANSLATE_NOOP("corvane::ViewSettings", "4 Times a Second")},
    RefreshText{1000, QT_TRANSLATE_NOOP("corvane::ViewSettings", "Once a Second")},
    RefreshText{5000, QT_TRANSLATE_NOOP("corvane::ViewSettings", "Every 5 Seconds")},
};

QString utcKey()
{
    return QStringLiteral("view/utc");
}

QString zoomKey()
{
    return QStringLiteral("view/zoom");
}

QString refreshKey()
{
    return QStringLiteral("view/refreshMs");
}

} // namespace

ViewSettings::ViewSettings(QSettings &settings, QObject *parent)
    : QObject(parent)
    , settings(settings)
    , utcAction(new QAction(tr("Times in &UTC"), this))
    , refreshActions(new QActionGroup(this))
{
    createTimeAction();
    createZoomActions();
    createRefreshActions();
}

void ViewSettings::createTimeAction()
{
    utcAction->setCheckable(true);
    utcAction->setChecked(settings.value(utcKey(), false).toBool());
    utcAction->setToolTip(tr("Show times in UTC instead of this machine's time zone"));
    connect(utcAction, &QAction::toggled, this, [this](bool utc) {
        settings.setValue(utcKey(), utc);
        Q_EMIT changed();
    });
}

void ViewSettings::createZoomActions()
{
    const int stored = settings.value(zoomKey(), normalZoom).toInt();
    if (std::find(zooms.begin(), zooms.end(), stored) != zooms.end())
        zoom = stored;
    const auto add = [this](const QString &text, const QString &toolTip,
                            const QList<QKeySequence> &keys, auto slot) {
        auto *action = new QAction(text, this);
        action->setToolTip(toolTip);
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, slot);
        zoomActions += action;
    };
    // Ctrl+= is the same key without Shift on many keyboards.
    add(tr("Zoom &In"), tr("Larger text in the views"),
        {tr("Ctrl++"), QKeySequence(Qt::CTRL | Qt::Key_Equal)}, [this] { zoomBy(1); });
    add(tr("Zoom &Out"), tr("Smaller text in the views"), {tr("Ctrl+-")}, [this] { zoomBy(-1); });
    add(tr("&Normal Size"), tr("Text of the usual size in the views"), {tr("Ctrl+0")},
        [this] { setZoom(normalZoom); });
}

void ViewSettings::createRefreshActions()
{
    const int stored = settings.value(refreshKey(), defaultRefreshMs).toInt();
    for (const RefreshText &text : refreshTexts) {
        QAction *action = refreshActions->addAction(tr(text.text));
        action->setCheckable(true);
        action->setData(text.ms);
        action->setToolTip(tr("How often counts and statistics are refreshed"));
        action->setChecked(text.ms == stored
                           || (text.ms == defaultRefreshMs && !refreshActions->checkedAction()));
    }
    connect(refreshActions, &QActionGroup::triggered, this, [this] {
        settings.setValue(refreshKey(), getRefreshMs());
        Q_EMIT changed();
    });
}

bool ViewSettings::isUtc() const
{
    return utcAction->isChecked();
}

int ViewSettings::getRefreshMs() const
{
    return refreshActions->checkedAction()->data().toInt();
}

void ViewSettings::addTo(QMenu &menu)
{
    menu.addActions(zoomActions);
    menu.addSeparator();
    menu.addAction(utcAction);
    menu.addMenu(tr("&Refresh of Counts"))->addActions(refreshActions->actions());
}

void ViewSettings::zoomBy(int steps)
{
    const auto at = std::distance(zooms.begin(), std::find(zooms.begin(), zooms.end(), zoom));
    constexpr auto last = static_cast<std::ptrdiff_t>(zooms.size()) - 1;
    setZoom(zooms.at(static_cast<size_t>(std::clamp<std::ptrdiff_t>(at + steps, 0, last))));
}

void ViewSettings::setZoom(int percent)
{
    zoom = percent;
    settings.setValue(zoomKey(), zoom);
    Q_EMIT changed();
}

} // namespace corvane
