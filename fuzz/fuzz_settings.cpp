// Reads the input as the settings file that the inspector finds. A file that it cannot have written
// is put aside as it is; from any other the window and the panel of sources take what they
// remember. What they then save is a settings file again.

#include "fuzzchecks.h"
#include "mainwindow.h"
#include "messagetreewidget.h"
#include "openpanel.h"
#include "session.h"
#include "settingsfile.h"
#include "widgetapplication.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdint>

using namespace corvane;
using namespace corvane::fuzz;

namespace {

/** Of the definitions of the example; no source is open. */
Session &session()
{
    static Session *const loaded = [] {
        auto *const made = new Session;
        Options options;
        options.definitions
            = {QStringLiteral(CORVANE_SOURCE_FOLDER "/examples/recording/rover.xml")};
        require(made->load(options).isEmpty(), "the definitions are good");
        return made;
    }();
    return *loaded;
}

QByteArray read(const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "the file is there");
    return file.readAll();
}

void checkPutAside(SettingsFile &file, const QString &path, const QByteArray &content)
{
    const QDir folder = QFileInfo(path).dir();
    const QStringList aside = folder.entryList({QStringLiteral("*.broken-*")});
    require(aside.size() == 1, "a broken file is kept");
    require(read(folder.filePath(aside.constFirst())) == content, "it is kept as it is");
    require(file.getNotice().contains(aside.constFirst()), "people are told where it is");
    require(file.get().allKeys().isEmpty(), "nothing is taken from it");
}

/** Opens what people see, with all that it remembers, and closes it, which saves. */
void restoreAll(QSettings &settings)
{
    const OpenPanel panel(settings);
    RecentSources recent(settings);
    for (const SourceChoice &choice : recent.get())
        recent.add(choice);
    MainWindow window(session(), settings);
    window.show();
    QCoreApplication::processEvents();
    window.close();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    makeWidgetApplication();
    MessageTreeWidget::sMessageInfoExpandedCollapsedMap.clear();
    MessageTreeWidget::sFieldInfoExpandedCollapsedMap.clear();
    const QByteArray content(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(count));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("settings.ini"));
    {
        QFile file(path);
        require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
                "the input is written");
    }
    {
        SettingsFile file(path);
        if (file.getNotice().isEmpty())
            require(read(path) == content, "a good file is left as it is");
        else
            checkPutAside(file, path, content);
        restoreAll(file.get());
    }
    const SettingsFile saved(path);
    require(saved.getNotice().isEmpty(), qPrintable(saved.getNotice()));
    return 0;
}
