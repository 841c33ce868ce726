#pragma once

#include "pathexpression.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <vector>

class FieldInfo;
class FieldValueLabel;
class Message;
class PathExpressionLineEdit;
class QLabel;
class QSettings;
class QStringListModel;
class QTableWidget;

namespace corvane {

class LatestMessages;

/**
 * The fields that people want to keep an eye on: chosen by typing or picking their path, each with
 * its value, its unit, and in words why there is no value.
 */
class WatchPanel : public QWidget
{
    Q_OBJECT

public:
    /** How long a value is shown as current, in milliseconds. */
    static constexpr int timeOutMs = 5000;
    /** More fields are not added at once. */
    static constexpr qsizetype maximumMatches = 20;

    /** \a latest is not owned and must outlive the panel. */
    explicit WatchPanel(const LatestMessages &latest, QWidget *parent = nullptr);
    ~WatchPanel() override;

    /** Adds the fields that \a path matches and are not watched yet; says so when it cannot. */
    void watch(const QString &path);
    void removeCurrent();
    /** Moves the current row by \a distance rows, as far as there are any. */
    void moveCurrent(int distance);

    void saveSettings(QSettings &settings) const;
    /** Fields that are not known are kept, and watched once their definitions are loaded. */
    void restoreSettings(QSettings &settings);

protected:
    void changeEvent(QEvent *event) override;

private:
    enum Column {
        PathColumn,
        ValueColumn,
        UnitColumn,
        StateColumn,
        ColumnCount
    };

    struct Row
    {
        QString path;
        const FieldInfo *field = nullptr; ///< Not owned; null while no definition describes it.
        FieldValueLabel *label = nullptr; ///< Owned by the table.
        QElapsedTimer sinceValue; ///< Invalid before the first message.
        bool absent = false; ///< In the last message.
    };

    QWidget *createChooser();
    QWidget *createButtons();
    void createTable();
    void add(const QString &path);
    void fitRowHeight();
    void fillTable();
    void resolve();
    void completeOptions();
    void followParts();
    void createLabel(Row &row);
    void colorLabels();
    static void showValue(const Message *message, FieldValueLabel &label);
    void showLatest(const Row &row);
    void showAllLatest();
    void forgetValues();
    void processMessage(const Message *message);
    void refreshStates();
    static QString getStateText(const Row &row);
    void say(const QString &text);

    const LatestMessages &latest;
    PathExpression expression;
    PathExpression messageOptions; ///< Matches the types of the chosen format.
    PathExpression fieldOptions; ///< Matches the fields of the chosen types.
    PathExpressionLineEdit *edit = nullptr; ///< Owned as a child.
    QStringListModel *completions; ///< Owned as a child.
    QTableWidget *table = nullptr; ///< Owned as a child.
    QLabel *notice = nullptr; ///< Owned as a child.
    std::vector<Row> rows; ///< In the order of the table.
    QTimer stateTimer;
};

} // namespace corvane
