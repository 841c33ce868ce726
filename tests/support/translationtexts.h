#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace corvane::test {

/** "context|text" to its translation. */
using TranslationTexts = QMap<QString, QString>;

/** The texts of a .ts file; those without a finished translation are empty. */
TranslationTexts readTranslations(const QString &path);
/** The same texts as the running program has them. */
TranslationTexts translated(const TranslationTexts &texts);
/** The places in a text where others are put in, sorted. */
QStringList placeholders(const QString &text);

} // namespace corvane::test
