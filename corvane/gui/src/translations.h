#pragma once

namespace corvane {

/**
 * Has the library's texts, and those of the framework, shown in the language of the default locale.
 * Every widget calls it before its first text; only the first call of an application does anything.
 *
 * Translations that the host has installed for the same texts go before the library's own.
 */
void installTranslations();

} // namespace corvane
