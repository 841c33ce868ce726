#pragma once

#include "protobufformat.h"

#include <QByteArray>
#include <QString>

#include <google/protobuf/dynamic_message.h>

namespace corvane::test {

/** Reads messages of the root type of a format once more, with libprotobuf, and compares. */
class ProtobufLibrary
{
public:
    explicit ProtobufLibrary(const ProtobufFormat &format);

    /** Where the format and libprotobuf differ about \a bytes; empty where they do not. */
    QString findDifference(const QByteArray &bytes);

private:
    const ProtobufFormat &format;
    google::protobuf::DynamicMessageFactory factory;
};

} // namespace corvane::test
