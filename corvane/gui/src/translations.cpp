#include "translations.h"

#include "embeddedtranslations.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

namespace corvane {

namespace {

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
    const EmbeddedTranslation *found = findTranslation();
    if (found != nullptr && translator->load(found->bytes, found->size))
        QCoreApplication::installTranslator(translator);
}

} // namespace corvane
