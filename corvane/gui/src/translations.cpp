#include "translations.h"

#include "translationdata.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

namespace corvane {

namespace {

bool isForReadersOf(const QLocale &translation, const QLocale &wanted)
{
    return translation.language() == wanted.language() && translation.script() == wanted.script();
}

/** The translations into the first language that people want and that there is; null for English.
 */
const TranslationData *findTranslations()
{
    for (const QString &name : QLocale().uiLanguages()) {
        const QLocale wanted(name);
        if (wanted.language() == QLocale::English || wanted.language() == QLocale::C)
            return nullptr;
        for (const TranslationData *data = translationData(); data->language != nullptr; ++data) {
            if (isForReadersOf(QLocale(QLatin1String(data->language)), wanted))
                return data;
        }
    }
    return nullptr;
}

/** Asks all other translators first, since the one that was installed last is asked first. */
class LastTranslator : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context,
                      const char *text,
                      const char *disambiguation,
                      int n) const override
    {
        thread_local bool isAskingOthers = false;
        if (isAskingOthers)
            return {};
        isAskingOthers = true;
        const QString others = QCoreApplication::translate(context, text, disambiguation, n);
        isAskingOthers = false;
        return others != QString::fromUtf8(text)
                   ? others
                   : QTranslator::translate(context, text, disambiguation, n);
    }
};

} // namespace

void installTranslations()
{
    static QPointer<QTranslator> translator;
    if (translator != nullptr)
        return;
    translator = new LastTranslator(QCoreApplication::instance());
    const TranslationData *data = findTranslations();
    if (data != nullptr && translator->load(data->bytes, data->size))
        QCoreApplication::installTranslator(translator);
}

} // namespace corvane
