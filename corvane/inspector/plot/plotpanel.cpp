#include "plotpanel.h"

#include "catalogue.h"
#include "corvane.h"
#include "decodedmessage.h"
#include "descriptions.h"
#include "messageinfo.h"
#include "messagesource.h"
#include "pathexpression.h"
#include "plotlegend.h"
#include "plotview.h"

#include <QAction>
#include <QClipboard>
#include <QCompleter>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSet>
#include <QSettings>
#include <QSplitter>
#include <QStringListModel>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace corvane {

namespace {

// Digits that change faster cannot be read.
constexpr int textIntervalMs = 100;
constexpr double zoomInFactor = 0.5;
constexpr qsizetype maximumCompletions = 200;
constexpr qsizetype maximumPathLength = 1000;

QString pathsKey()
{
    return QStringLiteral("plot/paths");
}

QString rightKey()
{
    return QStringLiteral("plot/right");
}

QString axisPerUnitKey()
{
    return QStringLiteral("plot/axisPerUnit");
}

QString spanKey()
{
    return QStringLiteral("plot/spanUs");
}

qint64 nowUs()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
}

/** The paths of the fields that \a pattern matches, at most \a maximum. */
QStringList pathsOf(const PathExpression &pattern, qsizetype maximum)
{
    return pattern.getMatchingExpressionsStringList(PathExpression::AllParts).mid(0, maximum);
}

/** "a[1..3]" as "a[1]", "a[2]", "a[3]", not more than \a maximum; any other text as it is. */
QStringList elementsOf(const QString &path, unsigned int maximum)
{
    static const QRegularExpression range(QStringLiteral("^(.*)\\[(\\d{1,9})\\.\\.(\\d{1,9})\\]$"));
    const QRegularExpressionMatch match = range.match(path);
    if (!match.hasMatch())
        return {path};
    const unsigned int first = match.captured(2).toUInt();
    const unsigned int last = std::min(match.captured(3).toUInt(), first + maximum - 1);
    QStringList paths;
    for (unsigned int i = first; i <= last; ++i)
        paths += QStringLiteral("%1[%2]").arg(match.captured(1)).arg(i);
    return paths;
}

/** The numeric places that \a path names, wildcards included, at most \a maximum. */
QStringList numericPlacesOf(const QString &path, qsizetype maximum)
{
    QStringList found;
    for (const QString &one : elementsOf(path, static_cast<unsigned int>(maximum))) {
        QStringList candidates{one};
        if (!FieldPlace::find(one)) {
            static const QRegularExpression element(QStringLiteral("^(.*)(\\[\\d+\\])$"));
            const QRegularExpressionMatch match = element.match(one);
            PathExpression pattern;
            pattern.setString(match.hasMatch() ? match.captured(1) : one);
            candidates = pattern.getMatchingExpressionsStringList(PathExpression::AllParts);
            candidates.replaceInStrings(QRegularExpression(QStringLiteral("$")), match.captured(2));
        }
        for (const QString &candidate : candidates) {
            const auto place = FieldPlace::find(candidate);
            if (place && place->isNumeric() && found.size() < maximum)
                found += place->getPath();
        }
    }
    return found;
}

} // namespace

AbstractPlotPanel *createPlotPanel(MessageSource &messages)
{
    return new PlotPanel(messages);
}

PlotPanel::PlotPanel(MessageSource &messages, QWidget *parent)
    : AbstractPlotPanel(parent)
    , completions(new QStringListModel(this))
    , view(new PlotView(series))
    , legend(new PlotLegend(series))
    , state(new QLabel(this))
    , notice(new QLabel(this))
{
    auto *splitter = new QSplitter(this);
    splitter->addWidget(view);
    splitter->addWidget(legend);
    for (QWidget *part : std::initializer_list<QWidget *>{view, legend})
        part->setMinimumHeight(fontMetrics().height() * 3);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setSizes({3000, 2000}); // which it scales to its own size
    for (QLabel *label : {state, notice})
        label->setTextFormat(Qt::PlainText);
    notice->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(QMargins());
    layout->setSpacing(fontMetrics().height() / 4);
    layout->addWidget(createTop());
    layout->addWidget(splitter, 1);
    layout->addWidget(state);
    layout->addWidget(notice);
    say({});
    connect(&messages, &MessageSource::newMessage, this, &PlotPanel::processMessage);
    connectAll();
    refreshTexts();
}

QWidget *PlotPanel::createTop()
{
    auto *top = new QWidget(this);
    edit = new QLineEdit(top);
    edit->setAccessibleName(tr("Path of a field to plot"));
    edit->setPlaceholderText(tr("Path of a field to plot"));
    edit->setToolTip(
        tr("FORMAT.MESSAGE.FIELD; * stands for any text, FIELD[2] is the third element "
           "of a repeated field, FIELD[0..3] are the first four"));
    edit->setClearButtonEnabled(true);
    edit->setMinimumWidth(fontMetrics().averageCharWidth() * 20);
    auto *completer = new QCompleter(completions, this);
    completer->setModelSorting(QCompleter::UnsortedModel);
    edit->setCompleter(completer);
    connect(edit, &QLineEdit::textEdited, this, &PlotPanel::completePath);
    connect(edit, &QLineEdit::returnPressed, this, [this] { addSeries(edit->text()); });
    auto *layout = new QHBoxLayout(top);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edit, 1);
    layout->addWidget(createToolBar());
    return top;
}

QToolBar *PlotPanel::createToolBar()
{
    auto *bar = new QToolBar(this);
    const auto add = [bar](const QString &text, const QString &toolTip, auto receiver, auto slot) {
        QAction *action = bar->addAction(text, receiver, slot);
        action->setToolTip(toolTip);
        return action;
    };
    const auto addShortcut = [this](QAction *action, const QKeySequence &key) {
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetShortcut);
        view->addAction(action);
    };
    QAction *follow
        = add(tr("Follow"), tr("Follow the newest value (End)"), view, &PlotView::setFollowing);
    follow->setCheckable(true);
    follow->setChecked(true);
    connect(view, &PlotView::followingChanged, follow, &QAction::setChecked);
    add(tr("In"), tr("Show less time (+)"), view, [this] { view->zoomTime(zoomInFactor); });
    add(tr("Out"), tr("Show more time (-)"), view, [this] { view->zoomTime(1 / zoomInFactor); });
    add(tr("All"), tr("Show all that was recorded (Home)"), view, &PlotView::showAll);
    add(tr("Fit"), tr("Fit the value axes to what is shown (V)"), view, &PlotView::fitValues);
    axisAction = add(tr("Axis per Unit"), tr("Give each unit a value axis of its own"), this,
                     [this](bool perUnit) {
                         axisPerUnit = perUnit;
                         view->setAxisPerUnit(perUnit);
                     });
    axisAction->setCheckable(true);
    axisAction->setChecked(axisPerUnit);
    addShortcut(add(tr("Copy"), tr("Copy the picture (Ctrl+C)"), this, &PlotPanel::copy),
                QKeySequence::Copy);
    addShortcut(add(tr("Save"), tr("Save what is shown as PNG, SVG or CSV (Ctrl+S)"), this,
                    &PlotPanel::save),
                QKeySequence::Save);
    return bar;
}

void PlotPanel::connectAll()
{
    connect(legend, &PlotLegend::removeRequested, this, &PlotPanel::removeSeries);
    connect(legend, &PlotLegend::otherSideRequested, this, &PlotPanel::moveToOtherSide);
    connect(Catalogue::getInstance(), &Catalogue::changed, this, &PlotPanel::resolve);
    connect(Corvane::getInstance(), &Corvane::confidentialInformationDisplayChanged, this, [this] {
        view->requestRefresh();
        refreshTexts();
    });
    textTimer.setSingleShot(true);
    textTimer.setInterval(textIntervalMs);
    connect(&textTimer, &QTimer::timeout, this, &PlotPanel::refreshTexts);
    connect(view, &PlotView::refreshed, this, [this] {
        if (!textTimer.isActive())
            textTimer.start();
    });
}

void PlotPanel::completePath()
{
    PathExpression typed;
    typed.setStringPrefix(edit->text(), PathExpression::AllParts);
    completions->setStringList(pathsOf(typed, maximumCompletions));
}

void PlotPanel::addSeries(const QString &path)
{
    const QStringList paths = numericPlacesOf(path, maximumMatches + 1);
    if (paths.isEmpty())
        return say(tr("No numeric field is named \"%1\". A path is FORMAT.MESSAGE.FIELD; * stands "
                      "for any text.")
                       .arg(path));
    if (paths.size() > maximumMatches)
        return say(
            tr("\"%1\" names more than %2 fields; name fewer.").arg(path).arg(maximumMatches));
    const bool all = std::all_of(paths.begin(), paths.end(),
                                 [this](const QString &found) { return add(found); });
    say(all ? QString() : tr("More than %1 series are not plotted.").arg(maximumSeries));
    rebuild();
    legend->selectRow(legend->rowCount() - 1);
}

/** Returns whether the series is there. */
bool PlotPanel::add(const QString &path)
{
    for (const auto &one : series)
        if (one->getPath() == path)
            return true;
    if (series.size() >= maximumSeries)
        return false;
    auto one = std::make_unique<PlotSeries>(path, getFreeNumber());
    one->setSide(getSideFor(*one));
    series.push_back(std::move(one));
    return true;
}

/** Where its unit is, else where fewer units are. */
PlotSeries::Side PlotPanel::getSideFor(const PlotSeries &one) const
{
    QSet<QString> left;
    QSet<QString> right;
    for (const auto &other : series) {
        if (other->getUnit() == one.getUnit())
            return other->getSide();
        (other->getSide() == PlotSeries::Side::Left ? left : right).insert(other->getUnit());
    }
    return right.size() < left.size() ? PlotSeries::Side::Right : PlotSeries::Side::Left;
}

int PlotPanel::getFreeNumber() const
{
    QSet<int> taken;
    for (const auto &one : series)
        taken.insert(one->getNumber());
    int number = 0;
    while (taken.contains(number))
        ++number;
    return number;
}

void PlotPanel::removeSeries(int row)
{
    if (row < 0 || row >= static_cast<int>(series.size()))
        return;
    series.erase(series.begin() + row);
    rebuild();
    legend->setFocus();
    legend->selectRow(std::min(row, legend->rowCount() - 1));
}

void PlotPanel::moveToOtherSide(int row)
{
    PlotSeries &one = *series.at(static_cast<size_t>(row));
    one.setSide(one.getSide() == PlotSeries::Side::Left ? PlotSeries::Side::Right
                                                        : PlotSeries::Side::Left);
    view->rebuild();
    refreshTexts();
}

void PlotPanel::setPaused(bool pause)
{
    paused = pause;
    view->setPaused(pause);
    refreshTexts();
}

void PlotPanel::setSender(std::optional<quint32> newSender)
{
    sender = newSender;
    for (const auto &one : series)
        one->forgetValues();
    view->requestRefresh();
    refreshTexts();
}

void PlotPanel::setUtc(bool utc)
{
    view->setUtc(utc);
    refreshTexts();
}

void PlotPanel::processMessage(const Message *message)
{
    const quint32 slot = message->getInfo()->getData()->slot;
    if (slot >= seriesBySlot.size() || seriesBySlot[slot].empty())
        return;
    const auto *decoded = static_cast<const DecodedMessage *>(message);
    if (sender && decoded->getSenderId() != *sender)
        return;
    qint64 timeUs = decoded->getTimeUs();
    if (timeUs == DecodedMessage::unknownTime)
        timeUs = nowUs();
    for (PlotSeries *one : seriesBySlot[slot])
        one->process(message, timeUs);
    if (!paused)
        view->requestRefresh();
}

void PlotPanel::resolve()
{
    for (const auto &one : series)
        one->resolve();
    rebuild();
}

/** Lets the messages of all series in, and finds the series of each. */
void PlotPanel::follow()
{
    QList<const MessageInfo *> types;
    seriesBySlot.clear();
    for (const auto &one : series) {
        const MessageInfo *type = one->getType();
        if (type == nullptr)
            continue;
        types.append(type);
        const size_t slot = type->getData()->slot;
        if (slot >= seriesBySlot.size())
            seriesBySlot.resize(slot + 1);
        seriesBySlot[slot].push_back(one.get());
    }
    need.setMessagesNeeded(types);
}

void PlotPanel::rebuild()
{
    follow();
    view->rebuild();
    legend->rebuild();
    refreshTexts();
}

void PlotPanel::refreshTexts()
{
    legend->refresh(view->getCursorUs());
    state->setText(view->getStateText());
}

void PlotPanel::copy()
{
    QGuiApplication::clipboard()->setImage(view->toImage());
    say(tr("The picture is in the clipboard."));
}

void PlotPanel::save()
{
    const QString fileName = QFileDialog::getSaveFileName(
        this, tr("Save the Plot"), QStringLiteral("plot.png"),
        tr("Picture (*.png);;Drawing (*.svg);;Shown values (*.csv)"));
    if (fileName.isEmpty())
        return;
    const QString error = view->saveAs(fileName);
    say(error.isEmpty() ? tr("Written: %1").arg(fileName) : error);
}

void PlotPanel::say(const QString &text)
{
    notice->setText(text);
    notice->setVisible(!text.isEmpty());
}

qint64 PlotPanel::getSampleBytes() const
{
    size_t bytes = 0;
    for (const auto &one : series)
        bytes += one->getStore().getBytes();
    return static_cast<qint64>(bytes);
}

void PlotPanel::saveSettings(QSettings &settings) const
{
    QStringList paths;
    QStringList right;
    for (const auto &one : series) {
        paths += one->getPath();
        if (one->getSide() == PlotSeries::Side::Right)
            right += one->getPath();
    }
    settings.setValue(pathsKey(), paths);
    settings.setValue(rightKey(), right);
    settings.setValue(axisPerUnitKey(), axisPerUnit);
    settings.setValue(spanKey(), view->getWindow().getSpanUs());
}

void PlotPanel::restoreSettings(QSettings &settings)
{
    const QStringList right = settings.value(rightKey()).toStringList();
    for (const QString &path : settings.value(pathsKey()).toStringList()) {
        if (path.isEmpty() || path.size() > maximumPathLength || !add(path))
            continue;
        series.back()->setSide(right.contains(path) ? PlotSeries::Side::Right
                                                    : PlotSeries::Side::Left);
    }
    axisAction->setChecked(settings.value(axisPerUnitKey(), true).toBool());
    axisPerUnit = axisAction->isChecked();
    view->setAxisPerUnit(axisPerUnit);
    view->setSpanUs(settings.value(spanKey(), TimeWindow::initialSpanUs).toLongLong());
    rebuild();
}

} // namespace corvane
