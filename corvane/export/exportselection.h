#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class FieldInfo;
class MessageInfo;

namespace corvane {

/** What is exported: fields of message types, in the order in which they were chosen. */
struct ExportSelection
{
    struct Type
    {
        const MessageInfo *info = nullptr; ///< Not owned.
        QList<const FieldInfo *> fields; ///< Not owned.
    };

    /** Adds what is not there yet. */
    void add(const MessageInfo *type, const QList<const FieldInfo *> &fields);
    QList<const MessageInfo *> getTypes() const;

    QList<Type> types;
};

struct ExportSelectionResult
{
    ExportSelection selection;
    QString error; ///< What is wrong, and similar paths; empty if nothing is.
};

/** Selects by path expressions; everything without any. Each has to match something. */
ExportSelectionResult selectForExport(const QStringList &paths);

} // namespace corvane
