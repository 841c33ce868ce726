#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class Message;

namespace corvane::test {

/**
 * The values that the fields of \a message give, in the form in which protoc --decode prints them,
 * line by line.
 */
QStringList textForm(const Message *message, int indent = 0);

/**
 * Where the two differ, or nothing. Floating point numbers are equal when they read as the same
 * number.
 */
QString findDifference(const QStringList &ours, const QStringList &theirs);

/** The path of protoc; empty where it is not installed. */
QString protocProgram();
/**
 * What protoc --decode makes of \a messages, each inside of "message { }".
 *
 * \a definitions: the path of the file that describes \a type.
 */
QStringList decodeWithProtoc(const QString &definitions,
                             const QString &type,
                             const QList<QByteArray> &messages);
/** The bytes that protoc --encode makes of \a text. */
QByteArray encodeWithProtoc(const QString &definitions, const QString &type, const QString &text);

} // namespace corvane::test
