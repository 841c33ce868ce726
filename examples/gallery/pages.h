#pragma once

#include <QString>

#include <array>

class MessageStatisticsCoordinator;
class EventLog;
class MessageSource;
class QWidget;

/** What the widgets show. */
struct LiveData
{
    MessageSource *source;
    MessageStatisticsCoordinator *statistics;
    EventLog *events;
};

/** A page of the gallery: one widget with its main settings. */
struct Page
{
    const char *name;
    QWidget *(*create)(const LiveData &data);
};

QWidget *createFieldValueLabelPage(const LiveData &data);
QWidget *createMessageWidgetPage(const LiveData &data);
QWidget *createMessageTreePage(const LiveData &data);
QWidget *createPathTextsPage(const LiveData &data);
QWidget *createPathComboBoxPage(const LiveData &data);
QWidget *createPathListPage(const LiveData &data);
QWidget *createStatisticsPage(const LiveData &data);
QWidget *createEventLogPage(const LiveData &data);

constexpr std::array pages = {
    Page{"FieldValueLabel", createFieldValueLabelPage},
    Page{"MessageWidget", createMessageWidgetPage},
    Page{"MessageTreeWidget", createMessageTreePage},
    Page{"PathExpressionLabel, PathExpressionLineEdit", createPathTextsPage},
    Page{"PathExpressionComboBox", createPathComboBoxPage},
    Page{"PathExpressionListWidget", createPathListPage},
    Page{"MessageStatisticsWidget", createStatisticsPage},
    Page{"EventLogTableWidget", createEventLogPage},
};
