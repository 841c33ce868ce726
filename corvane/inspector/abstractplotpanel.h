#pragma once

#include <QWidget>

#include <optional>

class MessageSource;
class QSettings;

namespace corvane {

/** What the inspector's window knows of the plot, which a build can leave out. */
class AbstractPlotPanel : public QWidget
{
public:
    using QWidget::QWidget;

    /**
     * Plots the numeric fields that \a path matches and are not plotted yet; says so where it
     * cannot. An element of a repeated field stands in brackets, "Format.Message.samples[3]", or
     * some, "samples[0..3]"; without brackets it is the first.
     */
    virtual void addSeries(const QString &path) = 0;
    /** While paused the picture stands still; samples are kept all the same. */
    virtual void setPaused(bool paused) = 0;
    /** Shows only what comes from \a sender from now on, of all senders for nothing; forgets what
     * came. */
    virtual void setSender(std::optional<quint32> sender) = 0;
    /** Shows times in UTC, else in the time zone of this machine. */
    virtual void setUtc(bool utc) = 0;
    /** What the samples of all lines take of memory, which is bounded for each line. */
    virtual qint64 getSampleBytes() const = 0;
    virtual void saveSettings(QSettings &settings) const = 0;
    virtual void restoreSettings(QSettings &settings) = 0;
};

/**
 * A plot of what \a messages sends, or null in a build without one. \a messages must outlive it;
 * the caller owns it.
 */
AbstractPlotPanel *createPlotPanel(MessageSource &messages);

} // namespace corvane
