#pragma once

#include "corvaneframework_export.h"
#include "decodedfieldinfo.h"

#include <memory>
#include <vector>

namespace corvane {

class Calculation;

/**
 * A field whose value is calculated from other fields of the same message.
 *
 * It has one value where every field that it uses has the value that it uses, else none. It is
 * confidential when it is declared so or when a field that it uses is.
 */
class CORVANEFRAMEWORK_EXPORT VirtualFieldInfo : public DecodedFieldInfo
{
public:
    /** One value of one field of a message. */
    struct Step
    {
        const FieldInfo *field = nullptr; ///< Not owned.
        unsigned int index = 0;
    };

    /** The way to a number: through sub-messages, the last step being the number itself. */
    using Operand = std::vector<Step>;

    VirtualFieldInfo(QString expression, std::unique_ptr<FieldInfoData> data);
    ~VirtualFieldInfo() override;

    const QString &getExpression() const { return expression; }

    /** To be called once, before the first message is read. \a operands must not lead back here. */
    void bind(std::vector<Operand> operands, std::unique_ptr<Calculation> calculation);
    /** To be called behind bind(), when the virtual fields that this one uses are complete. */
    void complete();

    /** How many fields are read for one value, those behind other virtual fields included. */
    qint64 getCost() const { return cost; }

    /** How many virtual fields stand one behind the other, this one included. */
    int getDepth() const { return depth; }

    /** The virtual fields that this one uses directly. */
    std::vector<const VirtualFieldInfo *> getUsedVirtualFields() const;

    void setDeclaredConfidential(bool confidential) { declaredConfidential = confidential; }

    /** To be called after fields of the format have become confidential, or are no longer. */
    void updateConfidential();

    unsigned int getNumberOfValues(const Message *message) const override;
    QString
    getValueText(const Message *message, unsigned int index, bool interpreted) const override;

protected:
    FieldValue readValue(const Message *message, unsigned int index) const override;

private:
    bool usesConfidential() const;

    QString expression;
    std::vector<Operand> operands;
    std::unique_ptr<Calculation> calculation;
    qint64 cost = 0;
    int depth = 1;
    bool declaredConfidential = false;
};

} // namespace corvane
