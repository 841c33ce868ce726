#pragma once

#include "protobufschema.h"

#include <QHash>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

class FieldInfo;
class FormatInfo;
class MessageInfo;

namespace corvane {

class Enumeration;
struct FieldInfoData;

/**
 * Describes a message type and all that it holds.
 *
 * Rows of single sub-messages are built as soon as a type is known, so descriptions must end where
 * definitions do not: a type that holds itself is described anew at each level, up to 32 of them,
 * or fewer where that would make more than 20,000 rows. At the last level its message fields are
 * described as cut. Types without an end in sight otherwise, and more than 20,000 descriptions, are
 * refused.
 */
class ProtobufDescriber
{
public:
    using Descriptor = google::protobuf::Descriptor;
    using FieldDescriptor = google::protobuf::FieldDescriptor;

    /** Names are without \a package, "a.b" or empty. */
    ProtobufDescriber(const ProtobufSchema &schema,
                      const FormatInfo *format,
                      const std::string &package);
    ~ProtobufDescriber();

    /** Adds all to the format; \a root becomes a main type. Null where it is refused. */
    const MessageInfo *describe(const Descriptor *root);

private:
    struct Key
    {
        const Descriptor *type;
        int level; ///< How often a type was entered from one that it holds itself.
        bool insideAny; ///< What an Any holds is resolved once, and not again inside of it.

        bool operator<(const Key &other) const
        {
            return std::tie(type, level, insideAny)
                   < std::tie(other.type, other.level, other.insideAny);
        }
    };

    std::vector<const Descriptor *> getAnyContents(const Key &key) const;
    void findCircles(const Descriptor *type);
    /** How the type of a message field is entered; nothing where it is cut. */
    std::optional<Key> getInner(const Key &outer, const Descriptor *inner) const;
    quint64 countRows(const Key &key);
    void chooseMaximumLevel(const Key &root);

    const MessageInfo *makeMessage(const Key &key);
    void addField(MessageInfo *message, const Key &key, const ProtobufField &field);
    void addAnyContents(MessageInfo *message, const Key &key);
    std::unique_ptr<FieldInfoData> makeFieldData(const FieldDescriptor *field);
    std::shared_ptr<const Enumeration>
    getEnumeration(const google::protobuf::EnumDescriptor *descriptor);
    QString getName(const Descriptor *type) const;

    const ProtobufSchema &schema;
    const FormatInfo *format; ///< Not owned.
    std::string package;
    int maximumLevel = 0;

    // Circles are found by Tarjan's algorithm: types with the same number hold each other.
    std::map<const Descriptor *, int> order;
    std::map<const Descriptor *, int> lowest;
    std::vector<const Descriptor *> open;
    std::map<const Descriptor *, int> circles;

    std::map<Key, quint64> rows;
    std::map<Key, const MessageInfo *> messages;
    std::map<const google::protobuf::EnumDescriptor *, std::shared_ptr<const Enumeration>>
        enumerations;
};

} // namespace corvane
