#pragma once

#include <fieldinfo.h>
#include <formatinfo.h>
#include <message.h>
#include <messageinfo.h>
#include <messagesource.h>

/** A message that carries a number. */
class CountMessage : public Message
{
public:
    CountMessage(const MessageInfo *type, quint64 count)
        : Message(type)
        , count(count)
    {
    }

    const quint64 count;
};

/** The field with that number. */
class CountField : public FieldInfo
{
public:
    explicit CountField(const MessageInfo *type);

    unsigned int getNumberOfValues(const Message *message) const override;
    FieldValue getValue(const Message *message, unsigned int index) const override;
};

/** A format with one message type, Count, and a source that sends it when told to. */
class CounterFormat
{
public:
    CounterFormat();
    ~CounterFormat();

    void send(quint64 number);

    const MessageInfo *getType() const { return &type; }

    const FieldInfo *getField() const { return &field; }

    MessageSource *getSource() { return &source; }

private:
    FormatInfo format;
    MessageInfo type;
    CountField field;
    MessageSource source;
};
