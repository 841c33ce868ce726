#pragma once

#include "abstractplotpanel.h"
#include "messageneed.h"
#include "plotseries.h"

#include <QTimer>

#include <vector>

class Message;
class QLabel;
class QLineEdit;
class QStringListModel;
class QToolBar;

namespace corvane {

class PlotLegend;
class PlotView;

/**
 * Numeric fields over time: a line to type paths into, the picture, and the series as a table.
 *
 * Every message counts, not only those that are shown: the values of the plotted fields are read
 * when a message arrives, with its own time or, where it has none, that of its arrival.
 */
class PlotPanel : public AbstractPlotPanel
{
    Q_OBJECT

public:
    /** More fields are not added at once. */
    static constexpr qsizetype maximumMatches = 20;
    static constexpr size_t maximumSeries = 40;

    /** \a messages is not owned and must outlive the panel. */
    explicit PlotPanel(MessageSource &messages, QWidget *parent = nullptr);

    void addSeries(const QString &path) override;
    void setPaused(bool paused) override;
    void setSender(std::optional<quint32> newSender) override;
    void setUtc(bool utc) override;
    qint64 getSampleBytes() const override;
    void saveSettings(QSettings &settings) const override;
    /** Fields that are not known are kept, and plotted once their definitions are loaded. */
    void restoreSettings(QSettings &settings) override;

    /** \a row: counts from 0; nothing happens where there is none. */
    void removeSeries(int row);

    const PlotSeriesList &getSeries() const { return series; }

    PlotView *getView() { return view; }

private:
    QWidget *createTop();
    QToolBar *createToolBar();
    void connectAll();
    void completePath();
    bool add(const QString &path);
    void moveToOtherSide(int row);
    PlotSeries::Side getSideFor(const PlotSeries &one) const;
    int getFreeNumber() const;
    void processMessage(const Message *message);
    void resolve();
    void follow();
    void rebuild();
    void refreshTexts();
    void copy();
    void save();
    void say(const QString &text);

    PlotSeriesList series;
    std::vector<std::vector<PlotSeries *>> seriesBySlot; ///< By the slots of message types.
    MessageNeed need{nullptr};
    std::optional<quint32> sender; ///< Whose messages count; those of all for nothing.
    bool paused = false;
    bool axisPerUnit = true;
    QLineEdit *edit = nullptr; ///< Owned as a child.
    QStringListModel *completions; ///< Owned as a child.
    PlotView *view; ///< Owned as a child.
    PlotLegend *legend; ///< Owned as a child.
    QAction *axisAction = nullptr; ///< Owned as a child.
    QLabel *state; ///< Owned as a child.
    QLabel *notice; ///< Owned as a child.
    QTimer textTimer;
};

} // namespace corvane
