#include "testcase.h"

#include "memleaktracer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>

#include <algorithm>
#include <utility>

namespace corvane::test {

namespace {

QMutex warningsMutex;
QStringList warnings;
QtMessageHandler previousHandler = nullptr;

void collectWarnings(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    // The offscreen platform says this of every window that has a minimum size.
    if (text == QLatin1String("This plugin does not support propagateSizeHints()"))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        const QMutexLocker locker(&warningsMutex);
        warnings.append(text);
        return;
    }
    previousHandler(type, context, text);
}

QStringList takeWarnings()
{
    const QMutexLocker locker(&warningsMutex);
    return std::exchange(warnings, {});
}

QString differenceText(const QMap<QString, qint64> &before, const QMap<QString, qint64> &after)
{
    QStringList lines;
    QStringList names = before.keys() + after.keys();
    names.removeDuplicates();
    for (const QString &name : std::as_const(names))
        if (before.value(name) != after.value(name))
            lines += QStringLiteral("%1: %2 -> %3")
                         .arg(name)
                         .arg(before.value(name))
                         .arg(after.value(name));
    return lines.join(QStringLiteral(", "));
}

} // namespace

void TestCase::expectWarning(const QString &text)
{
    expectedWarnings.append(text);
}

void TestCase::init()
{
    // Qt Test installs a handler of its own when the run begins; ours goes on top of it.
    previousHandler = qInstallMessageHandler(collectWarnings);
    takeWarnings();
    expectedWarnings.clear();
    liveObjectsBefore = MemLeakTracer::getInstance()->getLiveObjects();
}

void TestCase::cleanup()
{
    // What was deleted later is deleted now.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    qInstallMessageHandler(previousHandler);
    QStringList seen = takeWarnings();
    for (const QString &expected : std::as_const(expectedWarnings)) {
        const auto contains = [&](const QString &text) { return text.contains(expected); };
        const auto found = std::find_if(seen.begin(), seen.end(), contains);
        QVERIFY2(found != seen.end(), qPrintable(QStringLiteral("no such warning: ") + expected));
        seen.erase(found);
    }
    QVERIFY2(seen.isEmpty(),
             qPrintable(QStringLiteral("unexpected warning: ") + seen.join(QLatin1Char('\n'))));

    const QString difference
        = differenceText(liveObjectsBefore, MemLeakTracer::getInstance()->getLiveObjects());
    QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("left alive: ") + difference));
}

int runTests(QObject &testObject, int argc, char *argv[])
{
    return QTest::qExec(&testObject, argc, argv);
}

QString sampleFile(const QString &relativePath)
{
    QStringList folders;
    if (const QString chosen = qEnvironmentVariable("CORVANE_TEST_DATA"); !chosen.isEmpty())
        folders.append(chosen);
    folders.append(sourceFile(QStringLiteral("../shared/data")));
    for (const QString &folder : std::as_const(folders)) {
        const QString path = QDir(folder).filePath(relativePath);
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

QString sourceFile(const QString &relativePath)
{
    return QDir::cleanPath(QDir(qEnvironmentVariable("CORVANE_SOURCE_DIR")).filePath(relativePath));
}

} // namespace corvane::test
