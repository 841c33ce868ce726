#include "settingsfile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QStringDecoder>
#include <QVariant>

#include <algorithm>
#include <array>
#include <functional>
#include <limits>

namespace corvane {

namespace {

constexpr qint64 largestFileBytes = 4LL * 1024 * 1024;
constexpr qsizetype longestText = 4096;
constexpr qsizetype mostTexts = 20'000;

enum class Kind {
    Bytes, ///< Of a widget; with a seal.
    Boolean,
    Number,
    Numbers,
    Text,
    Texts
};

struct KnownKey
{
    const char *name; ///< With * for the number of an entry of a list.
    Kind kind;
    qint64 least = 0; ///< Of numbers.
    qint64 most = std::numeric_limits<qint64>::max();
};

// Ranges in which a widget can take the value; the parts of the window may allow less.
constexpr std::array knownKeys{
    KnownKey{"window/geometry", Kind::Bytes},
    KnownKey{"window/layout", Kind::Bytes},
    KnownKey{"window/types", Kind::Bytes},
    KnownKey{"tree/columns", Kind::Numbers, 0, 13},
    KnownKey{"tree/headerstate", Kind::Bytes},
    KnownKey{"tree/expandedMessages", Kind::Texts},
    KnownKey{"tree/expandedFields", Kind::Texts},
    KnownKey{"tree/collapsedMessages", Kind::Texts},
    KnownKey{"tree/hexadecimal", Kind::Boolean},
    KnownKey{"tree/units", Kind::Boolean},
    KnownKey{"tree/showVirtual", Kind::Boolean},
    KnownKey{"tree/showSecondary", Kind::Boolean},
    KnownKey{"tree/showAllTypes", Kind::Boolean},
    KnownKey{"statistics/headerstate", Kind::Bytes},
    KnownKey{"statistics/sortColumn", Kind::Number, 0, 100},
    KnownKey{"statistics/sortOrder", Kind::Number, 0, 1},
    KnownKey{"watch/paths", Kind::Texts},
    KnownKey{"watch/headerstate", Kind::Bytes},
    KnownKey{"events/headerstate", Kind::Bytes},
    KnownKey{"senders/headerstate", Kind::Bytes},
    KnownKey{"plot/paths", Kind::Texts},
    KnownKey{"plot/right", Kind::Texts},
    KnownKey{"plot/axisPerUnit", Kind::Boolean},
    KnownKey{"plot/spanUs", Kind::Number},
    KnownKey{"view/utc", Kind::Boolean},
    KnownKey{"view/zoom", Kind::Number, 1, 1000},
    KnownKey{"view/refreshMs", Kind::Number, 1, 3'600'000},
    KnownKey{"recentSources/size", Kind::Number, 0, 1000},
    KnownKey{"recentSources/*/source", Kind::Text},
    KnownKey{"recentSources/*/definitions", Kind::Texts},
    KnownKey{"recentSources/*/overlays", Kind::Texts},
    KnownKey{"recentSources/*/framing", Kind::Text},
    KnownKey{"recentSources/*/root", Kind::Text},
};

QString sealKeyOf(const QString &key)
{
    return QStringLiteral("seals/") + QString(key).replace(QLatin1Char('/'), QLatin1Char('.'));
}

QString sealOf(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex());
}

bool isSealed(const QSettings &settings, const QString &key)
{
    const QVariant value = settings.value(key);
    return value.typeId() == QMetaType::QByteArray
           && settings.value(sealKeyOf(key)).toString() == sealOf(value.toByteArray());
}

bool isText(const QVariant &value)
{
    const QString text = value.toString();
    return (value.typeId() == QMetaType::QString || value.typeId() == QMetaType::Bool)
           && text.size() <= longestText
           && std::none_of(text.begin(), text.end(), [](QChar character) {
                  return character.category() == QChar::Other_Control;
              });
}

bool isNumber(const QVariant &value, const KnownKey &known)
{
    bool ok = false;
    const qint64 number = value.toLongLong(&ok);
    return ok && value.typeId() != QMetaType::QByteArray && number >= known.least
           && number <= known.most;
}

/** Of one entry a settings file makes a value without a list around it, of none an invalid one. */
bool areEach(const QVariant &value, const std::function<bool(const QVariant &)> &isRight)
{
    const int type = value.typeId();
    if (!value.isValid())
        return true;
    if (type != QMetaType::QStringList && type != QMetaType::QVariantList)
        return isRight(value);
    const QVariantList entries = value.toList();
    return entries.size() <= mostTexts && std::all_of(entries.begin(), entries.end(), isRight);
}

bool isRight(const QSettings &settings, const QString &key, const KnownKey &known)
{
    const QVariant value = settings.value(key);
    const auto isOneNumber = [&known](const QVariant &one) { return isNumber(one, known); };
    switch (known.kind) {
    case Kind::Bytes:
        return isSealed(settings, key);
    case Kind::Boolean:
        return value.toString() == QLatin1String("true")
               || value.toString() == QLatin1String("false");
    case Kind::Number:
        return isOneNumber(value);
    case Kind::Numbers:
        return areEach(value, isOneNumber);
    case Kind::Text:
        return isText(value);
    case Kind::Texts:
        return areEach(value, isText);
    }
    return false;
}

/** Whether each line can be one of a settings file. */
bool areSettingsLines(const QByteArray &content)
{
    const QByteArrayList lines = content.split('\n');
    return std::all_of(lines.begin(), lines.end(), [](const QByteArray &line) {
        const QByteArray text = line.trimmed();
        return text.isEmpty() || text.startsWith('[') || text.startsWith(';')
               || text.indexOf('=') > 0;
    });
}

/** What is wrong with the file at a look from outside; empty if nothing is. */
QString findProblem(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly))
        return SettingsFile::tr("it cannot be read (%1)").arg(file.errorString());
    if (file.size() > largestFileBytes)
        return SettingsFile::tr("it is too large");
    const QByteArray content = file.readAll();
    QStringDecoder decoder(QStringDecoder::Utf8);
    [[maybe_unused]] const QString text = decoder(content);
    if (decoder.hasError() || content.contains('\0'))
        return SettingsFile::tr("it is no text");
    if (!areSettingsLines(content))
        return SettingsFile::tr("it is no settings file");
    // They can claim any size, for which Qt would take memory before it looks at what is there.
    if (content.contains("@Variant(") || content.contains("@DateTime("))
        return SettingsFile::tr("it holds what this program does not write");
    return {};
}

} // namespace

SettingsFile::SettingsFile(const QString &path)
{
    QString problem = findProblem(path);
    if (problem.isEmpty()) {
        settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
        if (settings->status() == QSettings::FormatError)
            problem = tr("it is no settings file");
        else if (const QString key = findBrokenKey(*settings); !key.isEmpty())
            problem = tr("the value of \"%1\" is none that this program writes").arg(key);
    }
    if (!problem.isEmpty())
        putAside(path, problem);
}

SettingsFile::~SettingsFile() = default;

void SettingsFile::putAside(const QString &path, const QString &problem)
{
    settings.reset(); // or it would write what it has read
    const QString time
        = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const QString aside = QStringLiteral("%1.broken-%2").arg(path, time);
    const bool isAside = QFile::rename(path, aside);
    notice = isAside ? tr("The settings file could not be used: %1. Everything starts with its "
                          "defaults; the old file is kept as \"%2\".")
                           .arg(problem, aside)
                     : tr("The settings file \"%1\" could not be used: %2. Everything starts with "
                          "its defaults, and nothing will be remembered.")
                           .arg(path, problem);
    const QString forNow = QDir::temp().filePath(
        QStringLiteral("corvane-inspector-%1.ini").arg(QCoreApplication::applicationPid()));
    settings = std::make_unique<QSettings>(isAside ? path : forNow, QSettings::IniFormat);
}

QString SettingsFile::getDefaultPath()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
        .filePath(QStringLiteral("corvane/corvane-inspector.ini"));
}

void SettingsFile::seal(QSettings &settings)
{
    const auto keys = settings.allKeys();
    for (const QString &key : keys)
        if (const QVariant value = settings.value(key); value.typeId() == QMetaType::QByteArray)
            settings.setValue(sealKeyOf(key), sealOf(value.toByteArray()));
}

QString SettingsFile::findBrokenKey(const QSettings &settings)
{
    static const QRegularExpression entryNumber(QStringLiteral("/\\d+/"));
    const auto keys = settings.allKeys();
    for (const QString &key : keys) {
        const QString name = QString(key).replace(entryNumber, QStringLiteral("/*/"));
        for (const KnownKey &known : knownKeys)
            if (name == QLatin1String(known.name) && !isRight(settings, key, known))
                return key;
    }
    return {};
}

} // namespace corvane
