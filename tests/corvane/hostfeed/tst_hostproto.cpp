#include "testcase.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <google/protobuf/descriptor.h>
#include <google/protobuf/descriptor.pb.h>

using namespace google::protobuf;

class TestHostProto : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void comments_areEverywhere();
    void units_standWhereNamesSayThem();
    void overlay_namesWhatExists();
    void overlay_hidesWhatIsConfidential();
    void overlay_envelope();

private:
    DescriptorPool pool;
    const FileDescriptor *file = nullptr; ///< With comments, which generated code does not have.
    QJsonObject overlay;
};

namespace {

template <typename Descriptor>
QString getComment(const Descriptor *descriptor)
{
    SourceLocation location;
    if (!descriptor->GetSourceLocation(&location))
        return QString();
    return QString::fromStdString(location.leading_comments).trimmed();
}

QStringList getFieldNames(const Descriptor *message)
{
    QStringList names;
    for (int i = 0; i < message->field_count(); ++i)
        names.append(QString::fromStdString(message->field(i)->name()));
    return names;
}

/** The unit that the end of a field's name tells. */
QString getUnitOfName(const QString &name)
{
    static const QList<std::pair<QString, QString>> units{
        {"_percent", "%"}, {"_bytes", "B"}, {"_us", "us"},        {"_ms", "ms"},
        {"_seconds", "s"}, {"_mhz", "MHz"}, {"_mbits", "Mbit/s"}, {"celsius", "degC"},
    };
    for (const auto &[end, unit] : units) {
        if (name.endsWith(end))
            return unit;
    }
    return QString();
}

} // namespace

void TestHostProto::initTestCase()
{
    const QString folder = corvane::test::sourceFile("corvane/hostfeed");
    QFile descriptorFile(QStringLiteral(HOST_DESCRIPTORS));
    QVERIFY(descriptorFile.open(QIODevice::ReadOnly));
    FileDescriptorSet descriptors;
    QVERIFY(descriptors.ParseFromString(descriptorFile.readAll().toStdString()));
    QCOMPARE(descriptors.file_size(), 1);
    file = pool.BuildFile(descriptors.file(0));
    QVERIFY(file != nullptr);

    QFile overlayFile(folder + "/host.overlay.json");
    QVERIFY(overlayFile.open(QIODevice::ReadOnly));
    QJsonParseError error;
    overlay = QJsonDocument::fromJson(overlayFile.readAll(), &error).object();
    QVERIFY2(error.error == QJsonParseError::NoError, qPrintable(error.errorString()));
}

void TestHostProto::comments_areEverywhere()
{
    QStringList bare;
    int described = 0;
    const auto check = [&](const auto *descriptor) {
        ++described;
        const QString comment = getComment(descriptor);
        if (comment.isEmpty() || comment.startsWith("Unit:"))
            bare.append(QString::fromStdString(descriptor->full_name()));
    };
    for (int i = 0; i < file->message_type_count(); ++i) {
        const Descriptor *message = file->message_type(i);
        check(message);
        for (int k = 0; k < message->field_count(); ++k)
            check(message->field(k));
    }
    for (int i = 0; i < file->enum_type_count(); ++i) {
        check(file->enum_type(i));
        for (int k = 0; k < file->enum_type(i)->value_count(); ++k)
            check(file->enum_type(i)->value(k));
    }
    QCOMPARE(bare, QStringList());
    QVERIFY(described > 100);
}

void TestHostProto::units_standWhereNamesSayThem()
{
    for (int i = 0; i < file->message_type_count(); ++i) {
        const Descriptor *message = file->message_type(i);
        for (int k = 0; k < message->field_count(); ++k) {
            const QString name = QString::fromStdString(message->field(k)->name());
            const QString unit = getUnitOfName(name);
            if (!unit.isEmpty())
                QVERIFY2(getComment(message->field(k)).endsWith("Unit: " + unit), qPrintable(name));
        }
    }
}

void TestHostProto::overlay_namesWhatExists()
{
    const QJsonObject messages = overlay["messages"].toObject();
    QVERIFY(!messages.isEmpty());
    for (auto it = messages.begin(); it != messages.end(); ++it) {
        const Descriptor *message = pool.FindMessageTypeByName(it.key().toStdString());
        QVERIFY2(message != nullptr, qPrintable(it.key()));
        const QStringList names = getFieldNames(message);
        for (const QString &field : it.value().toObject()["fields"].toObject().keys())
            QVERIFY2(names.contains(field), qPrintable(it.key() + '.' + field));
        for (const QJsonValue value : it.value().toObject()["virtualFields"].toArray()) {
            const QJsonObject field = value.toObject();
            QVERIFY(!names.contains(field["name"].toString()));
            static const QRegularExpression word("[a-z_]{2,}");
            for (const auto &match : word.globalMatch(field["expression"].toString()))
                QVERIFY2(names.contains(match.captured()), qPrintable(match.captured()));
        }
    }
}

void TestHostProto::overlay_hidesWhatIsConfidential()
{
    const QJsonObject messages = overlay["messages"].toObject();
    const auto isConfidential = [&](const char *message, const char *field) {
        return messages[QLatin1String(message)]["fields"][QLatin1String(field)]["confidential"]
            .toBool();
    };
    QVERIFY(isConfidential("corvane.host.Process", "command_line"));
    QVERIFY(isConfidential("corvane.host.Interface", "hardware_address"));
}

void TestHostProto::overlay_envelope()
{
    const char *rootName = "corvane.host.Envelope";
    const Descriptor *root = pool.FindMessageTypeByName(rootName);
    QVERIFY(root != nullptr);
    const QJsonObject message = overlay["messages"][QLatin1String(rootName)].toObject();
    const auto find = [root](const QJsonValue &name) {
        return root->FindFieldByName(name.toString().toStdString());
    };
    QVERIFY(find(message["timeField"]["field"]) != nullptr);
    QVERIFY(find(message["envelope"]["sequenceField"]) != nullptr);
    QVERIFY(root->FindOneofByName(message["envelope"]["oneof"].toString().toStdString())
            != nullptr);
}

CORVANE_TEST_MAIN(TestHostProto)
#include "tst_hostproto.moc"
