#pragma once

#include "descriptions.h"
#include "fieldchange.h"

#include <QHash>
#include <QStringList>

#include <memory>
#include <utility>
#include <vector>

class FormatInfo;
class MessageInfo;

namespace corvane {

/** What an overlay says of a message type; nothing where it leaves things as they are. */
struct MessageChange
{
    std::optional<QString> displayName;
    std::optional<QString> description;
    const FieldInfo *timeField = nullptr; ///< Not owned. Null to leave it as it is.
    qint64 timeFieldUnitUs = 1;
};

/** All that an overlay does to a format, collected so that it is done as a whole or not at all. */
class OverlayPlan
{
public:
    explicit OverlayPlan(const FormatInfo *format)
        : format(format)
    {
    }

    const FormatInfo *getFormat() const { return format; }

    /** A field that is there or will be; null where there is none of that name. */
    const FieldInfo *findField(const MessageInfo *message, const QString &path) const;
    /** Whether the plan itself brings the field. */
    bool isNew(const MessageInfo *message, const QString &path) const;
    /** The paths of all fields that are there or will be. */
    QStringList getFieldPaths(const MessageInfo *message) const;

    qsizetype getNumberOfNewFields() const { return static_cast<qsizetype>(newFields.size()); }

    FieldInfo *addField(const MessageInfo *message, std::unique_ptr<FieldInfo> field);
    /** \a field: one that is there. */
    void changeField(const FieldInfo *field, const FieldChange &change);
    void changeMessage(const MessageInfo *message, const MessageChange &change);

    void setFraming(const QString &newFraming) { framing = newFraming; }

    void setEnvelope(const Envelope &newEnvelope) { envelope = newEnvelope; }

    /** Makes all of it true. To be called once; the plan is used up then. */
    void apply();

private:
    struct NewField
    {
        const MessageInfo *message; ///< Not owned.
        std::unique_ptr<FieldInfo> field;
    };

    void applyEnvelope();
    void updateConfidential();

    const FormatInfo *format; ///< Not owned.
    std::optional<QString> framing;
    std::optional<Envelope> envelope;
    std::vector<NewField> newFields;
    QHash<std::pair<const MessageInfo *, QString>, const FieldInfo *> newFieldsByPath;
    std::vector<std::pair<const FieldInfo *, FieldChange>> fieldChanges;
    std::vector<std::pair<const MessageInfo *, MessageChange>> messageChanges;
};

/** The name of \a field behind those of the fields that it is a part of, joined by dots. */
QString fieldPath(const FieldInfo *field);

} // namespace corvane
