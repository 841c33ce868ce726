#pragma once

#include "newfieldreader.h"

namespace corvane {

/**
 * Reads what an overlay says of message types into a plan.
 *
 * Fields may use what stands further below, so their names are looked up by finish(), when all
 * messages have been read.
 */
class MessageReader
{
public:
    MessageReader(NodeReader &reader, OverlayPlan &plan);

    /** \a node: what the overlay says of \a message; lives until finish(). */
    void readMessage(const JsonNode &node, const MessageInfo *message);
    void finish();

private:
    struct TimeField
    {
        const JsonNode *node; ///< Not owned.
        const MessageInfo *message; ///< Not owned.
    };

    void readEnvelope(const JsonNode &node, const MessageInfo *message);
    bool readContentFields(const JsonNode &oneof, Envelope &envelope);
    bool readSequenceField(const JsonNode &node, Envelope &envelope);
    void readFields(const JsonNode &object, const MessageInfo *message);
    void readField(const JsonNode &node, const MessageInfo *message);
    void readTimeField(const TimeField &timeField);
    const FieldInfo *findTimeField(const JsonNode &node, const MessageInfo *message);
    void bind(const UnboundVirtualField &unbound);

    NodeReader &reader;
    OverlayPlan &plan;
    std::vector<UnboundVirtualField> unboundFields;
    std::vector<TimeField> timeFields;
};

} // namespace corvane
