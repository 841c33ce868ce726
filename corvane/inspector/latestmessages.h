#pragma once

#include "messagesource.h"

#include <QTimer>

#include <optional>
#include <vector>

class MessageInfo;

namespace corvane {

/**
 * Keeps the newest message of each type, so that a view that is opened late still shows the last
 * one, and hands each new one on at the pace of the eye: newMessage() comes at most once per frame
 * and type, with the newest. Holds a reference on each.
 *
 * Where several senders send messages of a type, the newest one counts, whoever sent it, until
 * people choose a sender. The newest messages of each sender are kept, so that the views change
 * over at once.
 */
class LatestMessages : public MessageSource
{
    Q_OBJECT

public:
    /** The shortest time between two rounds of newMessage(). */
    static constexpr int frameMs = 16;
    /** So many senders have their messages kept apart; those of all others are kept together. */
    static constexpr size_t maximumSenders = 64;

    explicit LatestMessages(MessageSource &source, QObject *parent = nullptr);
    ~LatestMessages() override;

    /** The newest message of that type, or null. Valid until control returns to the event loop. */
    const Message *get(const MessageInfo *type) const;
    /** Stops newMessage(), for people who want to read. What is new by then comes afterwards. */
    void setPaused(bool paused);

    bool isPaused() const { return paused; }

    /** From now on only messages of \a sender count, also while paused; of all senders for nothing.
     */
    void setSender(std::optional<quint32> sender);

    std::optional<quint32> getSender() const { return chosenSender; }

Q_SIGNALS:
    /** The first message of a type has come. */
    void typeSeen(const MessageInfo *type);
    /** get() gives the messages of another sender, or null for what that one has not sent. */
    void senderChanged();

private:
    struct Slot
    {
        const Message *message = nullptr; ///< One of those that are kept.
        bool isSeen = false; ///< Told of by typeSeen().
        bool isNew = false; ///< Not handed on yet.
    };

    struct Kept
    {
        const Message *message = nullptr; ///< One reference held if it is not null.
        quint64 number = 0; ///< In the order in which messages came.
    };

    struct Sender
    {
        std::optional<quint32> id; ///< Nothing for all those that are kept together.
        std::vector<Kept> newest; ///< By the slot of the message type.
    };

    void keep(const Message *message);
    Sender &senderFor(quint32 id);
    void show(quint32 number, const Message *message);
    const Message *choose(quint32 number) const;
    void handOn();

    std::vector<Slot> slots; ///< By the slot of the message type.
    std::vector<Sender> senders
        = std::vector<Sender>(1); ///< The first is that of all who are kept together.
    std::vector<quint32> newSlots; ///< In the order in which their types came.
    std::optional<quint32> chosenSender;
    quint64 messageCount = 0;
    QTimer frameTimer;
    bool paused = false;
};

} // namespace corvane
