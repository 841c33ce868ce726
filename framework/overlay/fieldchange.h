#pragma once

#include "fieldinfo.h"

#include <memory>
#include <optional>

namespace corvane {

class Enumeration;
class NodeReader;
struct JsonNode;

/** What an overlay says of a field; nothing where it leaves things as they are. */
struct FieldChange
{
    void applyTo(FieldInfo &field) const;

    std::optional<QString> displayName;
    std::optional<QString> description;
    std::optional<QString> unit;
    std::optional<FieldInfo::Role> role;
    std::optional<bool> confidential;
    std::shared_ptr<const Enumeration> symbols; ///< Null to leave them as they are.
};

/** Reads the members that all fields have. \a type and \a name: of the field. */
FieldChange readFieldChange(NodeReader &reader,
                            const JsonNode &object,
                            const FieldType &type,
                            const QString &name);

} // namespace corvane
