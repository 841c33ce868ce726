#include "inspectortranslations.h"

#include "embeddedtranslations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace corvane {

void installInspectorTranslations()
{
    const EmbeddedTranslation *found = findTranslation();
    if (found == nullptr)
        return;
    auto *ofQt = new QTranslator(QCoreApplication::instance());
    if (ofQt->load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(ofQt);
    auto *own = new QTranslator(QCoreApplication::instance());
    if (own->load(found->bytes, found->size))
        QCoreApplication::installTranslator(own);
}

} // namespace corvane
