#pragma once

namespace corvane {

/** Compiled translations into one language. */
struct TranslationData
{
    const char *language; ///< Such as "de" or "zh_CN"; null behind the last one.
    const unsigned char *bytes;
    int size;
};

/** All that the library has; made by the build. */
const TranslationData *translationData();

} // namespace corvane
