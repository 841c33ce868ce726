#pragma once

#include "formatinfo.h"
#include "messageinfo.h"

#include <QList>
#include <QString>

/** What this framework knows of a format, a message type and a field. */
namespace corvane {

struct FormatInfoData
{
    QString name;
};

struct MessageInfoData
{
    const FormatInfo *format = nullptr; ///< Not owned.
    QString name;
    QString description;
    QList<const FieldInfo *> fields; ///< Not owned.
};

struct FieldInfoData
{
    QString name;
    const MessageInfo *message = nullptr; ///< Not owned.
};

/** All message types that there are; whoever makes one adds it. */
CORVANEFRAMEWORK_EXPORT QList<const MessageInfo *> &knownTypes();

} // namespace corvane
