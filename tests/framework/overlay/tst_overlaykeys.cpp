#include "overlaykeys.h"
#include "overlaytestformat.h"
#include "testcase.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

using namespace corvane::test;

namespace {

QJsonObject schemaDefinitions()
{
    QFile file(sourceFile("docs/overlay.schema.json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object().value("$defs").toObject();
}

QStringList sorted(QStringList list)
{
    std::sort(list.begin(), list.end());
    return list;
}

QStringList textsOf(const QJsonValue &array)
{
    QStringList texts;
    for (const QJsonValue &value : array.toArray())
        texts += value.toString();
    return texts;
}

} // namespace

class TestOverlayKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void schema_hasTheKeysOfTheLoader();
    void schema_hasTheChoicesOfTheLoader();
    void schema_describesEverything();
    void guide_namesEveryKey();
    void guide_exampleIsValid();
};

void TestOverlayKeys::schema_hasTheKeysOfTheLoader()
{
    const QJsonObject definitions = schemaDefinitions();
    QStringList objects;
    for (auto it = definitions.begin(); it != definitions.end(); ++it) {
        const QJsonObject definition = it.value().toObject();
        if (!definition.contains("properties"))
            continue;
        objects += it.key();
        QCOMPARE(definition.value("additionalProperties"), QJsonValue(false));
        QCOMPARE(sorted(definition.value("properties").toObject().keys()),
                 sorted(corvane::overlayKeys().value(it.key())));
    }
    QCOMPARE(objects, corvane::overlayKeys().keys());
}

void TestOverlayKeys::schema_hasTheChoicesOfTheLoader()
{
    const QJsonObject definitions = schemaDefinitions();
    QCOMPARE(textsOf(definitions.value("role").toObject().value("enum")),
             corvane::overlayRoleNames());
    const QJsonObject timeField
        = definitions.value("timeField").toObject().value("properties").toObject();
    QCOMPARE(textsOf(timeField.value("unit").toObject().value("enum")),
             corvane::overlayTimeUnitNames());
}

void TestOverlayKeys::schema_describesEverything()
{
    const QJsonObject definitions = schemaDefinitions();
    const auto isDescribed = [&](const QJsonObject &property) {
        const QString reference = property.value("$ref").toString().section('/', -1);
        return property.contains("description")
               || definitions.value(reference).toObject().contains("description");
    };
    for (auto it = definitions.begin(); it != definitions.end(); ++it) {
        const QJsonObject properties = it.value().toObject().value("properties").toObject();
        for (auto property = properties.begin(); property != properties.end(); ++property)
            QVERIFY2(isDescribed(property.value().toObject()),
                     qPrintable(it.key() + '.' + property.key()));
    }
}

void TestOverlayKeys::guide_namesEveryKey()
{
    QFile file(sourceFile("docs/overlay.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString guide = QString::fromUtf8(file.readAll());
    for (const QStringList &keys : corvane::overlayKeys())
        for (const QString &key : keys)
            QVERIFY2(guide.contains('`' + key + '`'), qPrintable(key));
}

void TestOverlayKeys::guide_exampleIsValid()
{
    QFile file(sourceFile("docs/overlay.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString guide = QString::fromUtf8(file.readAll());
    const QString example = guide.section("```json\n", 1, 1).section("```", 0, 0);
    const TestFormat format("MAVLink", R"(
        GLOBAL_POSITION_INT
          time_boot_ms uint32
          lat          int32
          lon          int32
          vx           int16
          vy           int16
        SYS_STATUS
          voltage_battery uint16
          current_battery int16 optional
          errors_count1   uint16
    )");
    const auto result
        = corvane::loadOverlayText(example.toUtf8(), "overlay.md", {format.getInfo()});
    QVERIFY2(result.isOk(), qPrintable(result.toString()));
    const auto message = format.message("GLOBAL_POSITION_INT{vx: 300, vy: 400}");
    QCOMPARE(format.field("GLOBAL_POSITION_INT.ground_speed")->getValueText(message, 0, true), "5");
}

CORVANE_TEST_MAIN(TestOverlayKeys)
#include "tst_overlaykeys.moc"
