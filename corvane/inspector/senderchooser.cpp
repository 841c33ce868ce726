#include "senderchooser.h"

#include "senderstatistics.h"

namespace corvane {

SenderChooser::SenderChooser(const SenderTable &senders, QWidget *parent)
    : QComboBox(parent)
    , senders(senders)
{
    setAccessibleName(tr("Sender whose messages are shown"));
    setToolTip(tr("Whose messages the views show. Everything is counted, whoever sends it."));
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    addItem(QString());
    connect(this, &QComboBox::activated, this, [this](int index) {
        Q_EMIT chosen(index > 0 ? std::optional(itemData(index).toUInt()) : std::nullopt);
    });
    refresh();
}

void SenderChooser::refresh()
{
    for (const auto &sender : senders.getAll()) {
        // One that only damaged frames name has sent nothing to be shown.
        if (sender->frames == 0 || offered.contains(sender->number))
            continue;
        offered.insert(sender->number);
        addItem(tr("Only sender %1").arg(sender->id), sender->number);
    }
    const QString text = tr("All %1 senders: the last one wins").arg(count() - 1);
    if (itemText(0) != text)
        setItemText(0, text);
}

bool SenderChooser::hasChoice() const
{
    constexpr int withTwoSenders = 3;
    return count() >= withTwoSenders;
}

void SenderChooser::choose(std::optional<quint32> sender)
{
    const int index = sender ? findData(*sender) : 0;
    if (index < 0)
        return;
    setCurrentIndex(index);
    Q_EMIT chosen(sender);
}

} // namespace corvane
