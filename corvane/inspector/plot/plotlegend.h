#pragma once

#include "plotseries.h"

#include <QTableWidget>

#include <optional>

namespace corvane {

/** The series of a plot as rows: name, value, unit, axis and, in words, the state of each. */
class PlotLegend : public QTableWidget
{
    Q_OBJECT

public:
    enum Column {
        NameColumn,
        ValueColumn,
        CursorColumn,
        UnitColumn,
        AxisColumn,
        StateColumn,
        RemoveColumn,
        ColumnCount
    };

    /** \a series is not owned and must outlive the table. */
    explicit PlotLegend(const PlotSeriesList &series, QWidget *parent = nullptr);

    /** To be called when series were added or removed. */
    void rebuild();
    /** Shows the newest values, and those at \a cursorUs. */
    void refresh(std::optional<qint64> cursorUs);

Q_SIGNALS:
    /** The series of \a row is to be removed. */
    void removeRequested(int row);
    /** The series of \a row is to be drawn at the axis of the other side. */
    void otherSideRequested(int row);

private:
    void addAction(const QString &text, const QKeySequence &key, void (PlotLegend::*signal)(int));
    void createRow(int row);
    void setCellText(int row, Column column, const QString &text);
    QIcon iconOf(const PlotSeries &one) const;

    const PlotSeriesList &series;
};

} // namespace corvane
