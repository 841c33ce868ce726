#include "messagesource.h"

#include "message.h"

#include <QMetaType>

MessageSource::MessageSource(QObject *parent)
    : QObject(parent)
{
    // The header only declares Message, so the signal cannot be queued between threads without.
    qRegisterMetaType<const Message *>("const Message*");
}

MessageSource::~MessageSource() = default;
