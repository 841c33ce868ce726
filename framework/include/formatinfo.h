#pragma once

#include "corvaneframework_export.h"

#include <QString>

#include <memory>

namespace corvane {
struct FormatInfoData;
} // namespace corvane

/** The description of a message format: a family of message types under one name. */
class CORVANEFRAMEWORK_EXPORT FormatInfo
{
public:
    explicit FormatInfo(std::unique_ptr<corvane::FormatInfoData> data);
    ~FormatInfo();
    FormatInfo(const FormatInfo &) = delete;
    FormatInfo &operator=(const FormatInfo &) = delete;

    QString getName() const;

    /** The framework's own record of the format. */
    corvane::FormatInfoData *getData() const { return d.get(); }

private:
    std::unique_ptr<corvane::FormatInfoData> d;
};
