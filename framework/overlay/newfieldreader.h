#pragma once

#include "bitfieldinfo.h"
#include "expressionparser.h"
#include "nodereader.h"
#include "overlayplan.h"
#include "virtualfieldinfo.h"

namespace corvane {

/** A virtual field that is planned, but not yet bound to the fields that it uses. */
struct UnboundVirtualField
{
    VirtualFieldInfo *field = nullptr; ///< Owned by the plan.
    const MessageInfo *message = nullptr; ///< Not owned.
    const JsonNode *expressionNode = nullptr; ///< Not owned.
    ParsedExpression expression;
};

/** Reads the fields that an overlay adds to a message type. */
class NewFieldReader
{
public:
    NewFieldReader(NodeReader &reader, OverlayPlan &plan, const MessageInfo *message);

    /** \a list: the member "subFields" of \a parent. */
    void readSubFields(const JsonNode &list, const FieldInfo *parent);
    /** \a list: the member "virtualFields". */
    void readVirtualFields(const JsonNode &list, std::vector<UnboundVirtualField> *unbound);

private:
    bool canBeSplit(const JsonNode &list, const FieldInfo *parent);
    bool isWithinLimit(const JsonNode &list, qsizetype most);
    void readSubField(const JsonNode &node, const FieldInfo *parent);
    std::optional<BitFieldInfo::Bits> readBits(const JsonNode &node, const FieldInfo *parent);
    std::optional<BitFieldInfo::Bits> readRange(const JsonNode &node, const FieldInfo *parent);
    std::optional<BitFieldInfo::Bits> readBit(const JsonNode &node, const FieldInfo *parent);
    void addErrorAtName(const JsonNode &node, const QString &text);
    void readVirtualField(const JsonNode &node, std::vector<UnboundVirtualField> *unbound);
    bool keepVirtualField(const JsonNode &node, const QString &path, const QString &expression);

    NodeReader &reader;
    OverlayPlan &plan;
    const MessageInfo *message; ///< Not owned.
};

} // namespace corvane
