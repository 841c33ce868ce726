#include "translationtexts.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace corvane::test {

TranslationTexts readTranslations(const QString &path)
{
    TranslationTexts texts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QStringLiteral("name"))
            context = xml.readElementText();
        if (xml.name() == QStringLiteral("source"))
            source = xml.readElementText();
        if (xml.name() == QStringLiteral("translation")) {
            const bool isDone = xml.attributes().value(QStringLiteral("type")).isEmpty();
            const QString text = xml.readElementText();
            texts.insert(context + '|' + source, isDone ? text : QString());
        }
    }
    return texts;
}

TranslationTexts translated(const TranslationTexts &texts)
{
    TranslationTexts result;
    for (const QString &key : texts.keys()) {
        const QByteArray context = key.section('|', 0, 0).toUtf8();
        const QByteArray source = key.section('|', 1).toUtf8();
        result.insert(key, QCoreApplication::translate(context, source));
    }
    return result;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("%\\d"));
    QStringList result;
    for (auto match = pattern.globalMatch(text); match.hasNext();)
        result += match.next().captured();
    result.sort();
    return result;
}

} // namespace corvane::test
