#pragma once

#include <QWidget>

class MessageStatisticsCoordinator;
class MessageStatisticsWidget;
class QLabel;
class QSettings;

namespace corvane {

/** The reception statistics of every message type, as often as refresh() is called. */
class StatisticsPanel : public QWidget
{
    Q_OBJECT

public:
    /** \a coordinator: not owned, must outlive the panel. */
    explicit StatisticsPanel(MessageStatisticsCoordinator &coordinator, QWidget *parent = nullptr);

    /** Does nothing while nobody can see it. */
    void refresh();
    void saveSettings(QSettings &settings) const;
    /** What the settings hold need not be right. */
    void restoreSettings(QSettings &settings);

protected:
    void showEvent(QShowEvent *event) override;

private:
    MessageStatisticsCoordinator &coordinator;
    QLabel *hint; ///< Owned as a child. Shown while there is nothing else.
    MessageStatisticsWidget *tree; ///< Owned as a child.
};

} // namespace corvane
