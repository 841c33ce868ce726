#pragma once

#include <QTreeView>

class MessageInfo;
class MessageStatistics;
class MessageStatisticsCoordinator;
class QSettings;
class QSortFilterProxyModel;

namespace corvane {

class MessageTypeModel;

/** A sortable list of the message types that have been seen, of which people choose one. */
class MessageTypeView : public QTreeView
{
    Q_OBJECT

public:
    /** \a statistics is not owned and must outlive the view. */
    explicit MessageTypeView(const MessageStatisticsCoordinator &statistics,
                             QWidget *parent = nullptr);

    /** Takes over new types and new counts. */
    void refresh();
    bool isEmpty() const;
    /** The type that is chosen, also one that no definition describes; null for none. */
    const MessageStatistics *getChosen() const;
    /** Does nothing when \a type has not been seen. */
    void choose(const MessageInfo *type);
    /** Chooses the first one that is shown, unless one is chosen already. */
    void chooseFirst();

    void saveSettings(QSettings &settings) const;
    void restoreSettings(const QSettings &settings);

Q_SIGNALS:
    void chosen();

private:
    MessageTypeModel *types; ///< Owned as a child.
    QSortFilterProxyModel *sorted; ///< Owned as a child.
};

} // namespace corvane
