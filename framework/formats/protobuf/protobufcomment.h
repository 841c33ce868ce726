#pragma once

#include "corvaneframework_export.h"

#include <QString>

#include <google/protobuf/descriptor.h>

#include <string>

namespace corvane {

/** What a comment in a definition says of a message or field. */
struct CORVANEFRAMEWORK_EXPORT ProtobufComment
{
    /** \a comment: as libprotobuf gives it, without the comment signs. */
    static ProtobufComment parse(const std::string &comment);

    /** Of a message, field or enum value: the comment before it, else the one behind it. */
    template <typename Descriptor>
    static ProtobufComment of(const Descriptor *descriptor)
    {
        google::protobuf::SourceLocation location;
        if (!descriptor->GetSourceLocation(&location))
            return {};
        return parse(location.leading_comments.empty() ? location.trailing_comments
                                                       : location.leading_comments);
    }

    QString text; ///< Its paragraphs, with an empty line between.
    QString unit; ///< Of a line "Unit: m/s", which is no part of the text.
};

} // namespace corvane
