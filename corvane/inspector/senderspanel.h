#pragma once

#include <QHash>
#include <QWidget>

class MessageInfo;
class QLabel;
class QSettings;
class QTreeWidgetItem;
class SteadyTreeWidget;

namespace corvane {

class Reception;
struct SenderStatistics;

/** The senders of a stream: frames, losses, and damaged frames by the type that they claim. */
class SendersPanel : public QWidget
{
    Q_OBJECT

public:
    /** \a reception: not owned, must outlive the panel. */
    explicit SendersPanel(const Reception &reception, QWidget *parent = nullptr);

    /** Does nothing while nobody can see it. */
    void refresh();

    void saveSettings(QSettings &settings) const;
    void restoreSettings(const QSettings &settings);

Q_SIGNALS:
    /** People want to see the messages of that sender only. */
    void senderChosen(quint32 sender);

protected:
    void showEvent(QShowEvent *event) override;

private:
    enum Column {
        SenderColumn,
        FramesColumn,
        GapsColumn,
        LostColumn,
        CrcErrorsColumn,
        ColumnCount
    };

    class ClaimedTypeItem;

    struct Row
    {
        QTreeWidgetItem *item = nullptr; ///< Owned by the tree.
        /** The rows below it, which noise makes many of: there are none until it is expanded. */
        QHash<const MessageInfo *, ClaimedTypeItem *> claimedTypes;
    };

    void hideErrorsWithoutChecksum();
    void refreshRow(const SenderStatistics &sender);
    static void refreshClaimedTypes(Row &row, const SenderStatistics &sender);

    const Reception &reception;
    QLabel *hint; ///< Owned as a child. Shown while there is nothing else.
    SteadyTreeWidget *tree; ///< Owned as a child.
    QHash<const SenderStatistics *, Row> rows;
};

} // namespace corvane
