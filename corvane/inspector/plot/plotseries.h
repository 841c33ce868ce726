#pragma once

#include "fieldplace.h"
#include "samplestore.h"

#include <QCoreApplication>
#include <QPen>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace corvane {

/** One line of the plot: a value of a message over time. */
class PlotSeries
{
    Q_DECLARE_TR_FUNCTIONS(PlotSeries)

public:
    enum class Side {
        Left,
        Right
    };

    /** Lines beyond this number repeat the colours, dashed. */
    static constexpr int colorCount = 10;

    /** \a path: see FieldPlace. \a number: tells the lines of a plot apart by colour and dashes. */
    PlotSeries(QString path, int number);

    QString getPath() const { return path; }

    int getNumber() const { return number; }

    /** The short path while a definition describes the field, else the whole one. */
    QString getName() const;
    QString getUnit() const;
    /** Readable on light and on dark backgrounds. */
    QPen getPen() const;
    /** Why there is no value, or that there is one. */
    QString getStateText() const;
    QString getLastValueText() const;
    /** The value at \a timeUs, which is that of the newest message until then. */
    QString getValueText(qint64 timeUs) const;
    /** Whether nothing may be shown, because the values are confidential. */
    bool isHidden() const;

    bool isStepped() const { return place && place->isStepped(); }

    /** Null while no definition describes the field. */
    const MessageInfo *getType() const { return place ? place->getType() : nullptr; }

    const SampleStore &getStore() const { return store; }

    Side getSide() const { return side; }

    void setSide(Side newSide) { side = newSide; }

    /** Looks the path up again; to be called when descriptions came or went. */
    void resolve();
    /** As if nothing had come. */
    void forgetValues();
    /** Takes the value of \a message, which is one of getType(). */
    void process(const Message *message, qint64 timeUs);

private:
    QString path;
    int number;
    Side side = Side::Left;
    std::optional<FieldPlace> place;
    SampleStore store;
    FieldValue lastValue;
    bool received = false;
    bool confidential = false; ///< By its description, or because a value was.
};

using PlotSeriesList = std::vector<std::unique_ptr<PlotSeries>>;

} // namespace corvane
