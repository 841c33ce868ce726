#pragma once

#include "messagesource.h"

#include <QTimer>

#include <vector>

class MessageInfo;

namespace corvane {

/**
 * Keeps the newest message of each type, so that a view that is opened late still shows the last
 * one, and hands each new one on at the pace of the eye: newMessage() comes at most once per frame
 * and type, with the newest. Holds a reference on each.
 */
class LatestMessages : public MessageSource
{
    Q_OBJECT

public:
    /** The shortest time between two rounds of newMessage(). */
    static constexpr int frameMs = 16;

    explicit LatestMessages(MessageSource &source, QObject *parent = nullptr);
    ~LatestMessages() override;

    /** The newest message of that type, or null. Valid until control returns to the event loop. */
    const Message *get(const MessageInfo *type) const;
    /** Stops newMessage(), for people who want to read. What is new by then comes afterwards. */
    void setPaused(bool paused);

    bool isPaused() const { return paused; }

Q_SIGNALS:
    /** The first message of a type has come. */
    void typeSeen(const MessageInfo *type);

private:
    struct Slot
    {
        const Message *message = nullptr; ///< One reference held if it is not null.
        bool isNew = false; ///< Not handed on yet.
    };

    void keep(const Message *message);
    void handOn();

    std::vector<Slot> slots; ///< By the slot of the message type.
    std::vector<quint32> newSlots; ///< In the order in which their types came.
    QTimer frameTimer;
    bool paused = false;
};

} // namespace corvane
