#pragma once

#include <QList>
#include <QObject>

#include <vector>

class Message;
class MessageInfo;
class MessageSource;

namespace corvane {

/**
 * Keeps the newest message of each type, so that a view that is opened late, or refreshed once a
 * frame, still shows the last one. Holds a reference on each.
 */
class LatestMessages : public QObject
{
    Q_OBJECT

public:
    explicit LatestMessages(MessageSource &source, QObject *parent = nullptr);
    ~LatestMessages() override;

    /** The newest message of that type, or null. Valid until control returns to the event loop. */
    const Message *get(const MessageInfo *type) const;

Q_SIGNALS:
    /** The first message of a type has come. */
    void typeSeen(const MessageInfo *type);

private:
    void keep(const Message *message);

    std::vector<const Message *> bySlot; ///< One reference held on each that is not null.
};

} // namespace corvane
