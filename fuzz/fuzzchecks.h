#pragma once

#include <QString>

class Message;

namespace corvane::fuzz {

/** An application without windows, as signals and timers need one; the same at each call. */
void makeApplication();

/** Ends the program, so that the input counts as a crash, if \a holds is false. */
void require(bool holds, const char *what);
void requireEqual(const QString &left, const QString &right, const char *what);

/**
 * Asks for everything that can be asked of a message and its parts: texts, values, places in the
 * bytes. What is exported of it must be JSON.
 */
void readAll(const Message *message);

} // namespace corvane::fuzz
