#pragma once

#include "corvaneframework_export.h"

#include <QObject>

class Message;

/**
 * Where decoded messages come from. Whoever implements it registers "const Message*" with Qt's
 * meta-type system, so that the signal can be queued between threads.
 */
class CORVANEFRAMEWORK_EXPORT MessageSource : public QObject
{
    Q_OBJECT

public:
    explicit MessageSource(QObject *parent = nullptr);
    ~MessageSource() override;

Q_SIGNALS:
    /**
     * A message of a needed type was decoded. \a message is valid during the connected slots; a
     * receiver that keeps it adds a reference.
     */
    void newMessage(const Message *message);
};
