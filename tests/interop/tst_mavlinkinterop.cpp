#include "descriptions.h"
#include "fieldinfo.h"
#include "fieldvalue.h"
#include "mavlinkframes.h"
#include "mavlinkmessage.h"
#include "messageinfo.h"
#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <bit>
#include <cmath>
#include <memory>

using namespace corvane;
using namespace corvane::test;

namespace {

constexpr int installTimeoutMs = 120'000;
constexpr int generateTimeoutMs = 30'000;

/** Runs a program in the folder of the node packages; what went wrong, or an empty text. */
QString run(const QString &program, const QStringList &arguments, int timeoutMs)
{
    QProcess process;
    process.setWorkingDirectory(QStringLiteral(INTEROP_BUILD_DIR));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("NODE_PATH", QStringLiteral(INTEROP_BUILD_DIR "/node_modules"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
        return QStringLiteral("%1: %2").arg(program, process.errorString());
    }
    return process.exitCode() == 0 ? QString() : QString::fromUtf8(process.readAll()).trimmed();
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString sourceOf(const char *name)
{
    return sourceFile(QStringLiteral("tests/interop/") + QLatin1String(name));
}

/** Installs the encoder's packages unless these very ones are there. */
QString installPackages(const QString &npm)
{
    const QDir folder(QStringLiteral(INTEROP_BUILD_DIR));
    const QByteArray wanted = readAll(sourceOf("package-lock.json"));
    const bool isThere = QFile::exists(folder.filePath("node_modules/.package-lock.json"));
    if (isThere && readAll(folder.filePath("package-lock.json")) == wanted)
        return {};
    folder.mkpath(".");
    for (const char *name : {"package.json", "package-lock.json"}) {
        QFile::remove(folder.filePath(name));
        QFile::copy(sourceOf(name), folder.filePath(name));
    }
    const QString error
        = run(npm, {"ci", "--ignore-scripts", "--no-audit", "--no-fund"}, installTimeoutMs);
    if (!error.isEmpty())
        QFile::remove(folder.filePath("package-lock.json"));
    return error;
}

/** The text of a value as the generator writes it. */
QString exactText(const FieldInfo *field, const FieldValue &value)
{
    if (field->getType().getCode() != FieldType::Float)
        return field->getRawString(value);
    const double number = value.toDouble().value();
    if (std::isnan(number))
        return QStringLiteral("0x7ff8000000000000");
    return QStringLiteral("0x%1").arg(std::bit_cast<quint64>(number), 16, 16, QLatin1Char('0'));
}

QStringList textsOf(const FieldInfo *field, const Message *message)
{
    if (field->isStringField())
        return {field->getString(message)};
    QStringList texts;
    for (unsigned int index = 0; index < field->getNumberOfValues(message); ++index)
        texts.append(exactText(field, field->getValue(message, index)));
    return texts;
}

QStringList textsOf(const QJsonValue &expected)
{
    if (expected.isString())
        return {expected.toString()};
    QStringList texts;
    for (const QJsonValue &element : expected.toArray())
        texts.append(element.toString());
    return texts;
}

} // namespace

/** Frames of an independent encoder come out field by field as they went in. */
class tst_MavlinkInterop : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void stream_isWhole();
    void fields_areEqual();
    void symbols_areEqual();
    void signedFrames_keepTheirSignature();

private:
    void compareField(const Message *message, const QJsonObject &frame, const QString &name);

    std::unique_ptr<MavlinkFormat> format;
    QByteArray bytes;
    QJsonArray expected;
    QList<QByteArray> frames;
};

void tst_MavlinkInterop::initTestCase()
{
    CORVANE_SAMPLE_FILE(definitions, "mavlink/definitions/ardupilotmega.xml");
    const QString node = QStandardPaths::findExecutable("node");
    const QString npm = QStandardPaths::findExecutable("npm");
    if (node.isEmpty() || npm.isEmpty())
        QSKIP("node and npm are not installed");
    if (const QString error = installPackages(npm); !error.isEmpty())
        QSKIP(qPrintable(QStringLiteral("npm ci failed: ") + error));
    const QString error = run(node, {sourceOf("generate.cjs"), "."}, generateTimeoutMs);
    QVERIFY2(error.isEmpty(), qPrintable(error));

    format = std::make_unique<MavlinkFormat>();
    QVERIFY(format->load(definitions).isOk());
    bytes = readAll(QStringLiteral(INTEROP_BUILD_DIR "/frames.bin"));
    expected = QJsonDocument::fromJson(readAll(QStringLiteral(INTEROP_BUILD_DIR "/expected.json")))
                   .array();
    QVERIFY(expected.size() > 1000);
    DecoderRun decoded(*format);
    decoded.append(bytes);
    decoded.finish();
    frames = decoded.getFrames();
}

void tst_MavlinkInterop::stream_isWhole()
{
    DecoderRun decoded(*format);
    decoded.append(bytes, 1000);
    decoded.finish();
    QCOMPARE(decoded.getEvents(), QStringList());
    QCOMPARE(decoded.getFrames().size(), expected.size());
    QCOMPARE(decoded.getSenders(),
             QStringList(QStringLiteral("7/9: %1 frames, 0 gaps, 0 lost").arg(expected.size())));
    QCOMPARE(decoded.getDoubtfulBytes(), 0);
}

void tst_MavlinkInterop::compareField(const Message *message,
                                      const QJsonObject &frame,
                                      const QString &name)
{
    const FieldInfo *field = findField(*format, frame["name"].toString(), name);
    const bool isExtension = frame["extensions"].toArray().contains(name);
    const QString place = QStringLiteral("%1.%2, version %3, %4 values")
                              .arg(frame["name"].toString(), name, frame["version"].toString(),
                                   frame["pattern"].toString());
    const QStringList texts = textsOf(field, message);
    const QStringList wanted = textsOf(frame["fields"].toObject()[name]);
    if (field->getNumberOfValues(message) == 0) {
        // A limit, zero or NaN may be the value that means "none"; other values never are.
        const bool mayBeNone = frame["pattern"] != QLatin1String("ordinary");
        const bool cannotBeThere = isExtension && frame["version"] == QLatin1String("1");
        QVERIFY2(field->isOptional() && (mayBeNone || cannotBeThere), qPrintable(place));
        return;
    }
    QVERIFY2(!isExtension || frame["version"] != QLatin1String("1"), qPrintable(place));
    QVERIFY2(texts == wanted,
             qPrintable(place + ": " + texts.join(' ') + " instead of " + wanted.join(' ')));
}

void tst_MavlinkInterop::fields_areEqual()
{
    QCOMPARE(frames.size(), expected.size());
    qsizetype compared = 0;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const QJsonObject frame = expected[i].toObject();
        const FrameMessage message(*format, frames[i]);
        QCOMPARE(message.get()->getInfo()->getName(), frame["name"].toString());
        const auto names = frame["fields"].toObject().keys();
        for (const QString &name : names) {
            compareField(message.get(), frame, name);
            if (QTest::currentTestFailed())
                return;
            ++compared;
        }
    }
    qInfo("%lld fields of %lld frames compared", static_cast<long long>(compared),
          static_cast<long long>(expected.size()));
    QVERIFY(compared > 10'000);
}

void tst_MavlinkInterop::symbols_areEqual()
{
    qsizetype compared = 0;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const QJsonObject symbols = expected[i].toObject()["symbols"].toObject();
        if (symbols.isEmpty())
            continue;
        const FrameMessage message(*format, frames[i]);
        for (auto symbol = symbols.begin(); symbol != symbols.end(); ++symbol, ++compared)
            QCOMPARE(message.textOf(symbol.key()), symbol.value().toString());
    }
    QVERIFY(compared >= 18);
}

void tst_MavlinkInterop::signedFrames_keepTheirSignature()
{
    qsizetype count = 0;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const FrameMessage message(*format, frames[i]);
        const bool isSigned = expected[i].toObject()["version"] == QLatin1String("signed");
        const auto *block = static_cast<const MavlinkMessage *>(message.get());
        QCOMPARE(block->isSigned(), isSigned);
        // The link's number, as the encoder was told.
        if (isSigned)
            QCOMPARE(int(block->getBytes().last(13).front()), 3);
        count += isSigned ? 1 : 0;
    }
    QVERIFY(count > 200);
}

CORVANE_TEST_MAIN(tst_MavlinkInterop)
#include "tst_mavlinkinterop.moc"
