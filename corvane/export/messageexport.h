#pragma once

#include "exportselection.h"
#include "jsonwriter.h"

#include <QString>
#include <QtGlobal>

#include <string>
#include <vector>

class Message;
class QIODevice;

namespace corvane {

class SenderTable;

enum class ExportFormat {
    Csv,
    JsonLines
};

/**
 * Writes decoded messages one by one as lines of text; docs/export.md says how they look.
 *
 * Lines are collected and written together, so whoever is done, or waits for more messages, calls
 * flush(). After something could not be written, nothing more is.
 */
class MessageExport
{
public:
    /** \a device is open for writing; neither it nor \a senders is owned. */
    MessageExport(QIODevice &device,
                  const ExportSelection &selection,
                  const SenderTable &senders,
                  ExportFormat format,
                  ValueNames names);

    /** Writes \a message if its type is selected; false when the device did not take the text. */
    bool write(const Message *message);
    /** Writes what was collected; false when the device did not take it. */
    bool flush();

    /** Messages, whether written already or only collected. */
    quint64 getCount() const { return count; }

    /** Why writing failed; empty if it did not. */
    const QString &getError() const { return error; }

private:
    struct Type
    {
        JsonWriter::Fields fields;
        size_t columnsBefore = 0; ///< Of other types.
        size_t columnsBehind = 0;
    };

    void addTypes(const ExportSelection &selection);
    void appendHeader(const ExportSelection &selection);
    void appendRow(const Message *message, Type &type);
    void appendCell(const Message *message, FieldText &field);
    const std::string &getSenderName(const Message *message);

    QIODevice &device;
    const SenderTable &senders;
    ExportFormat format;
    JsonWriter json;
    std::vector<Type> types;
    std::vector<size_t> typeBySlot; ///< Index of the type plus 1; 0 for types without selection.
    std::string buffer;
    std::string senderName; ///< Of senderId; empty before the first message.
    quint32 senderId = 0;
    quint64 count = 0;
    QString error;
};

} // namespace corvane
