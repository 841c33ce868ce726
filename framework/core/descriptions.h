#pragma once

#include "corvaneframework_export.h"
#include "fieldinfo.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class FormatInfo;
class MessageInfo;

namespace corvane {

class Enumeration;

/** What is known of a field. Filled by a format's loader, changed by overlays, then only read. */
struct CORVANEFRAMEWORK_EXPORT FieldInfoData
{
    QString name; ///< As the definition has it; what path expressions use.
    QString displayName; ///< What people see instead; empty for the name itself.
    QString unit;
    QString description;
    QList<const MessageInfo *> messageInfos;
    QList<const FieldInfo *> subFieldInfos;
    const FieldInfo *parent = nullptr; ///< Not owned.
    std::shared_ptr<const Enumeration> symbols; ///< May be null.
    QString choice; ///< The choice (a oneof) that the field is a case of; empty for most fields.
    FieldInfo::Role role = FieldInfo::Ordinary;
    bool repeated = false;
    bool optional = false;
    bool isString = false;
    bool isVirtual = false;
    bool confidential = false;
    bool instance = false; ///< Tells several devices that send the same type apart.
};

/** What is known of a message type. Owns its fields. */
struct CORVANEFRAMEWORK_EXPORT MessageInfoData
{
    /** Takes \a field over and lists it; a sub-field goes behind its parent and siblings. */
    FieldInfo *addField(std::unique_ptr<FieldInfo> field, const MessageInfo *owner);
    /** The field of that name (a path of names for a sub-field, joined by dots), or null. */
    const FieldInfo *findField(const QString &path) const;

    QString name; ///< As the definition has it; what path expressions use.
    QString displayName; ///< What people see instead; empty for the name itself.
    QString shortDescription;
    QString description;
    const FormatInfo *format = nullptr; ///< Not owned.
    /** The same type where it is described again, inside of itself; named "NAME#2" and so on. */
    QList<const MessageInfo *> variants;
    QList<const FieldInfo *> fields; ///< All, in their defined order, sub-fields included.
    std::vector<std::unique_ptr<FieldInfo>> ownedFields;
    const FieldInfo *timeField = nullptr; ///< The field that carries the message's time, if any.
    qint64 timeFieldUnitUs = 1; ///< Microseconds per unit of the time field.
    quint32 number = 0; ///< The message id of the format.
    quint32 slot = 0; ///< Dense and never reused, so that tables can be indexed by it.
    bool main = true;
};

/** Messages that come wrapped: each message of a stream holds one of several types. */
struct Envelope
{
    const MessageInfo *type = nullptr; ///< Not owned.
    QList<const FieldInfo *> contentFields; ///< The cases, each a sub-message of a type of its own.
    const FieldInfo *sequenceField = nullptr; ///< Counts the messages, if any.
};

/** What is known of a format. Owns its message types. */
struct CORVANEFRAMEWORK_EXPORT FormatInfoData
{
    MessageInfo *addMessage(std::unique_ptr<MessageInfo> message);
    /** The type of that name, with or without the package; null where there is none. */
    MessageInfo *findMessage(const QString &name) const;

    QString name;
    QString package; ///< What the names of types leave out, such as "example.".
    QStringList framings; ///< How frames can stand in a stream, the default first.
    QString framing; ///< How they do, as an overlay says; empty for the default.
    std::optional<Envelope> envelope; ///< Filled by overlays.
    std::vector<std::unique_ptr<MessageInfo>> messages;
    QHash<QString, MessageInfo *> messagesByName;
};

/** The first sentence of \a text, cut (with an ellipsis) at 160 characters. */
CORVANEFRAMEWORK_EXPORT QString firstSentence(const QString &text);

} // namespace corvane
