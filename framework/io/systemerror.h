#pragma once

#include <QString>

namespace corvane {

/** What the system calls \a error, a value of errno. */
QString getSystemErrorText(int error);

} // namespace corvane
