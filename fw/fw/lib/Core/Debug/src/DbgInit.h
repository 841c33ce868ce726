#pragma once

namespace corvane {

/** What an error code of the initialisation means; begins with a blank where it is known. */
const char *initErrorText(int code);

} // namespace corvane
