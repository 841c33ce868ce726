#pragma once

#include <QLocale>

namespace corvane {

/** Compiled translations into one language. */
struct EmbeddedTranslation
{
    const char *language; ///< Such as "de" or "zh_CN"; null behind the last one.
    const unsigned char *bytes;
    int size;
};

/** All that the library or program has; made by the build. */
const EmbeddedTranslation *embeddedTranslations();

/** The one into the first language that people want and that there is; null for English. */
inline const EmbeddedTranslation *findTranslation()
{
    for (const QString &name : QLocale().uiLanguages()) {
        const QLocale wanted(name);
        if (wanted.language() == QLocale::English || wanted.language() == QLocale::C)
            return nullptr;
        for (const auto *there = embeddedTranslations(); there->language != nullptr; ++there) {
            const QLocale locale(QLatin1String(there->language));
            if (locale.language() == wanted.language() && locale.script() == wanted.script())
                return there;
        }
    }
    return nullptr;
}

} // namespace corvane
