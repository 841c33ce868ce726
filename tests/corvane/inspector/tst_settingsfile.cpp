#include "messagetreewidget.h"
#include "settingsfile.h"
#include "shownwindow.h"
#include "workbench.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QRandomGenerator>

using namespace corvane;
using namespace corvane::test;

class tst_settingsfile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void missing_isFine();
    void ownFile_isTaken();
    void randomBytes_arePutAside();
    void brokenFile_isPutAside_data();
    void brokenFile_isPutAside();
    void randomValues_arePutAside();
    void everyKeyOfAWindow_isKnown();
    void unknownKeys_areLeftAlone();
    void changedBytes_breakTheSeal();
    void putAsideTwice_keepsBoth();
    void unwritableFolder_remembersNothing();
    void window_remembersCollapsedTypes();
    void collapsedTypes_ofOtherFormats_areKept();
    void window_startsOnWhateverRemains();

private:
    QString newPath() { return folder.filePath(QStringLiteral("%1/settings.ini").arg(++count)); }

    void write(const QString &path, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static QStringList asideOf(const QString &path)
    {
        const QFileInfo info(path);
        return info.dir().entryList({info.fileName() + QStringLiteral(".broken-*")});
    }

    /** A file that a window has written, with something in each part. */
    QString writtenByAWindow()
    {
        const QString path = newPath();
        SettingsFile file(path);
        ShownWindow shown;
        MainWindow window(shown.session, file.get());
        window.show();
        window.close();
        return path;
    }

    QTemporaryDir folder;
    int count = 0;
};

void tst_settingsfile::missing_isFine()
{
    SettingsFile file(newPath());
    QCOMPARE(file.getNotice(), QString());
    QVERIFY(file.get().allKeys().isEmpty());
}

void tst_settingsfile::ownFile_isTaken()
{
    const QString path = writtenByAWindow();
    SettingsFile file(path);
    QCOMPARE(file.getNotice(), QString());
    QVERIFY(file.get().contains("window/geometry"));
    QVERIFY(asideOf(path).isEmpty());
}

void tst_settingsfile::randomBytes_arePutAside()
{
    QRandomGenerator random(7);
    for (int i = 0; i < 20; ++i) {
        QByteArray content(500, Qt::Uninitialized);
        for (char &byte : content)
            byte = static_cast<char>(random.bounded(256));
        const QString path = newPath();
        write(path, content);
        SettingsFile file(path);
        QVERIFY(!file.getNotice().isEmpty());
        QVERIFY(file.get().allKeys().isEmpty());
        const QStringList aside = asideOf(path);
        QCOMPARE(aside.size(), 1);
        QCOMPARE(read(QFileInfo(path).dir().filePath(aside.constFirst())), content);
        QVERIFY(file.getNotice().contains(aside.constFirst()));
    }
}

void tst_settingsfile::brokenFile_isPutAside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no text") << QByteArray("[view]\nzoom=\xff\xfe\n");
    QTest::newRow("zero byte") << QByteArray("[view]\nzoom=1\0"
                                             "0\n",
                                             17);
    QTest::newRow("no settings") << QByteArray("this is\nno settings file\n");
    QTest::newRow("claims much memory")
        << QByteArray("[x]\ny=@Variant(\\0\\0\\0\\t\\xff\\xff\\xff\\xff)\n");
    QTest::newRow("huge") << QByteArray("[x]\ny=" + QByteArray(5 * 1024 * 1024, 'z'));
    QTest::newRow("zoom") << QByteArray("[view]\nzoom=-7\n");
    QTest::newRow("refresh") << QByteArray("[view]\nrefreshMs=often\n");
    QTest::newRow("utc") << QByteArray("[view]\nutc=perhaps\n");
    QTest::newRow("layout as text") << QByteArray("[window]\nlayout=abc\n");
    QTest::newRow("layout without seal") << QByteArray("[window]\nlayout=@ByteArray(abc)\n");
    QTest::newRow("columns") << QByteArray("[tree]\ncolumns=0, 99\n");
    QTest::newRow("column") << QByteArray("[tree]\ncolumns=Name\n");
    QTest::newRow("sort column") << QByteArray("[statistics]\nsortColumn=5000000000\n");
    QTest::newRow("path with a control character")
        << QByteArray("[watch]\npaths=A.B.c, \"D.E.\\x1\"\n");
    QTest::newRow("recent source") << QByteArray("[recentSources]\n1\\source=@ByteArray(a)\n");
}

void tst_settingsfile::brokenFile_isPutAside()
{
    QFETCH(QByteArray, content);
    const QString path = newPath();
    write(path, content);
    SettingsFile file(path);
    QVERIFY(!file.getNotice().isEmpty());
    QCOMPARE(asideOf(path).size(), 1);
    file.get().setValue("view/zoom", 110);
    file.get().sync();
    QVERIFY(read(path).contains("zoom=110")); // the new file is used from now on
}

void tst_settingsfile::randomValues_arePutAside()
{
    const QString good = writtenByAWindow();
    const QStringList keys = QSettings(good, QSettings::IniFormat).allKeys();
    QVERIFY(keys.size() > 15);
    for (const QString &key : keys) {
        if (key.startsWith("seals/"))
            continue;
        const QString path = newPath();
        write(path, read(good));
        QSettings(path, QSettings::IniFormat).setValue(key, QByteArray("\x01\xf0 random \x7f"));
        const SettingsFile file(path);
        QVERIFY2(file.getNotice().contains(key), qPrintable(key));
    }
}

void tst_settingsfile::everyKeyOfAWindow_isKnown()
{
    // So that a part of the window that remembers something new is not forgotten here.
    QSettings settings(writtenByAWindow(), QSettings::IniFormat);
    const auto keys = settings.allKeys();
    for (const QString &key : keys) {
        if (key.startsWith("seals/"))
            continue;
        settings.setValue(key, QByteArray("unsealed"));
        QCOMPARE(SettingsFile::findBrokenKey(settings), key);
        settings.remove(key);
    }
}

void tst_settingsfile::unknownKeys_areLeftAlone()
{
    const QString path = newPath();
    write(path, "[later]\nthing=1\n");
    SettingsFile file(path);
    QCOMPARE(file.getNotice(), QString());
    QCOMPARE(file.get().value("later/thing").toInt(), 1);
}

void tst_settingsfile::changedBytes_breakTheSeal()
{
    QSettings settings(newPath(), QSettings::IniFormat);
    settings.setValue("window/layout", QByteArray("some bytes"));
    QCOMPARE(SettingsFile::findBrokenKey(settings), QStringLiteral("window/layout"));
    SettingsFile::seal(settings);
    QCOMPARE(SettingsFile::findBrokenKey(settings), QString());
    settings.setValue("window/layout", QByteArray("Some bytes"));
    QCOMPARE(SettingsFile::findBrokenKey(settings), QStringLiteral("window/layout"));
}

void tst_settingsfile::putAsideTwice_keepsBoth()
{
    const QString path = newPath();
    for (int i = 1; i <= 2; ++i) {
        write(path, "no settings");
        const SettingsFile file(path);
        QCOMPARE(asideOf(path).size(), i);
        QTest::qWait(2);
    }
}

void tst_settingsfile::unwritableFolder_remembersNothing()
{
    const QString path = newPath();
    QDir().mkpath(path); // a folder where the file should be
    write(path + "/in/the/way", "x");
    SettingsFile file(path);
    QVERIFY(!file.getNotice().isEmpty());
    QVERIFY(file.get().allKeys().isEmpty());
}

void tst_settingsfile::window_remembersCollapsedTypes()
{
    const QString path = newPath();
    SettingsFile file(path);
    const auto rowIn = [](const MainWindow &window, const QString &name) {
        return window.findChild<MessageTreeWidget *>()->findItems(name, Qt::MatchExactly).value(0);
    };
    {
        ShownWindow shown;
        MainWindow window(shown.session, file.get());
        window.show();
        shown.session.start(shown.options);
        QTRY_VERIFY(rowIn(window, "MOTION") != nullptr);
        QVERIFY(rowIn(window, "MOTION")->isExpanded());
        rowIn(window, "MOTION")->setExpanded(false);
        window.close();
    }
    ShownWindow shown;
    MainWindow window(shown.session, file.get());
    window.show();
    shown.session.start(shown.options);
    QTRY_VERIFY(rowIn(window, "MOTION") != nullptr && rowIn(window, "WHEELS") != nullptr);
    QVERIFY(!rowIn(window, "MOTION")->isExpanded());
    QVERIFY(rowIn(window, "WHEELS")->isExpanded());
}

void tst_settingsfile::collapsedTypes_ofOtherFormats_areKept()
{
    const QString path = newPath();
    SettingsFile file(path);
    file.get().setValue("tree/collapsedMessages", QStringList{"Other.Type", "MAVLink.MOTION"});
    ShownWindow shown;
    MainWindow window(shown.session, file.get());
    window.show();
    window.close();
    QCOMPARE(file.get().value("tree/collapsedMessages").toStringList(),
             (QStringList{"Other.Type", "MAVLink.MOTION"}));
}

void tst_settingsfile::window_startsOnWhateverRemains()
{
    // Each line of a good file cut short or doubled, as a disk or an editor may leave it.
    const QByteArrayList lines = read(writtenByAWindow()).split('\n');
    ShownWindow shown;
    for (qsizetype i = 0; i < lines.size(); i += 3) {
        QByteArrayList changed = lines;
        changed[i] = changed[i].left(changed[i].size() / 2);
        const QString path = newPath();
        write(path, changed.join('\n'));
        SettingsFile file(path);
        MainWindow window(shown.session, file.get());
        window.show();
        QVERIFY(window.isVisible());
    }
}

CORVANE_GUI_TEST_MAIN(tst_settingsfile)
#include "tst_settingsfile.moc"
