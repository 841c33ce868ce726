#include "everyfeature.h"
#include "protobufmessages.h"
#include "protobuftextform.h"
#include "testcase.h"

#include <QRandomGenerator>

#include <cmath>

using namespace corvane;
using namespace corvane::test;

class tst_ProtobufRandom : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void randomMessages_equalThoseOfProtoc();
};

namespace {

/** Writes random messages of the definitions with every feature in the text format. */
class RandomText
{
public:
    explicit RandomText(quint32 seed)
        : random(seed)
    {
    }

    QString every(int depth)
    {
        QString text = QStringLiteral("id: %1 ").arg(signedNumber(32));
        for (const char *name : {"int32_field", "sint32_field", "sfixed32_field"})
            maybe(text, name, [this] { return signedNumber(32); });
        for (const char *name : {"int64_field", "sint64_field", "sfixed64_field"})
            maybe(text, name, [this] { return signedNumber(64); });
        for (const char *name : {"uint32_field", "fixed32_field"})
            maybe(text, name, [this] { return unsignedNumber(32); });
        for (const char *name : {"uint64_field", "fixed64_field"})
            maybe(text, name, [this] { return unsignedNumber(64); });
        maybe(text, "float_field", [this] { return floating(true); });
        maybe(text, "double_field", [this] { return floating(false); });
        maybe(text, "bool_field", [this] { return boolean(); });
        maybe(text, "string_field", [this] { return string(); });
        maybe(text, "bytes_field", [this] { return bytes(); });
        maybe(text, "color", [this] { return color(); });
        many(text, "unpacked", [this] { return signedNumber(32); });
        many(text, "packed", [this] { return signedNumber(64); });
        many(text, "doubles", [this] { return floating(false); });
        many(text, "strings", [this] { return string(); });
        many(text, "chunks", [this] { return bytes(); });
        many(text, "colors", [this] { return color(); });
        many(text, "bools", [this] { return boolean(); });
        maybe(text, "part", [this] { return part(); });
        many(text, "parts", [this] { return part(); });
        switch (random.bounded(4)) {
        case 0:
            text += QStringLiteral("number: ") + signedNumber(32) + ' ';
            break;
        case 1:
            text += QStringLiteral("text: ") + string() + ' ';
            break;
        case 2:
            text += QStringLiteral("piece: ") + part() + ' ';
            break;
        default:
            break;
        }
        for (quint32 i = random.bounded(4U); i > 0; --i)
            text += QStringLiteral("counts { key: 'k%1' value: %2 } ").arg(i).arg(signedNumber(32));
        for (quint32 i = random.bounded(4U); i > 0; --i)
            text += QStringLiteral("parts_by_number { key: %1 value %2 } ").arg(i).arg(part());
        maybe(text, "Pair",
              [this] { return QStringLiteral("{ left: %1 }").arg(signedNumber(32)); });
        many(text, "Item", [this] { return QStringLiteral("{ name: %1 }").arg(string()); });
        maybe(text, "modern", [this] { return modern(); });
        maybe(text, "[test.extra]", [this] { return signedNumber(32); });
        many(text, "[test.more]", [this] { return part(); });
        maybe(text, "time",
              [this] { return QStringLiteral("{ seconds: %1 }").arg(signedNumber(64)); });
        if (depth < 3)
            maybe(text, "inner",
                  [this, depth] { return QStringLiteral("{ %1 }").arg(every(depth + 1)); });
        return text;
    }

private:
    template <typename Make>
    void maybe(QString &text, const char *name, Make make)
    {
        if (random.bounded(2) == 0)
            text += QStringLiteral("%1: %2 ").arg(QLatin1String(name), make());
    }

    template <typename Make>
    void many(QString &text, const char *name, Make make)
    {
        for (quint32 i = random.bounded(4U); i > 0; --i)
            text += QStringLiteral("%1: %2 ").arg(QLatin1String(name), make());
    }

    QString unsignedNumber(int bits)
    {
        return QString::number(random.generate64() >> (64 - bits) >> random.bounded(bits));
    }

    QString signedNumber(int bits)
    {
        const auto number = static_cast<qint64>(random.generate64()) >> (64 - bits);
        return QString::number(number >> random.bounded(bits));
    }

    QString floating(bool isSingle)
    {
        switch (random.bounded(6)) {
        case 0:
            return QStringLiteral("inf");
        case 1:
            return QStringLiteral("nan");
        case 2:
            return QStringLiteral("-0");
        default:
            break;
        }
        const int exponent = static_cast<int>(random.bounded(isSingle ? 60 : 600)) - 30;
        return QString::number((random.generateDouble() - 0.5) * std::pow(10.0, exponent), 'g', 17);
    }

    QString boolean() { return random.bounded(2) == 0 ? "true" : "false"; }

    QString color()
    {
        return QStringList{"RED", "GREEN", "DARK"}.at(static_cast<qsizetype>(random.bounded(3)));
    }

    QString string()
    {
        const QStringList texts{"''", "'plain'", "'quote \\' and \\\\'", "'äöü 😀'", "'line\\n'"};
        return texts.at(static_cast<qsizetype>(random.bounded(texts.size())));
    }

    QString bytes()
    {
        QString text(QLatin1Char('\''));
        for (quint32 i = random.bounded(20U); i > 0; --i)
            text += QStringLiteral("\\%1").arg(random.bounded(256), 3, 8, QLatin1Char('0'));
        return text + QLatin1Char('\'');
    }

    QString part()
    {
        QString text(QStringLiteral("{ "));
        maybe(text, "value", [this] { return signedNumber(32); });
        maybe(text, "label", [this] { return string(); });
        return text + QLatin1Char('}');
    }

    QString modern()
    {
        QString text(QStringLiteral("{ "));
        maybe(text, "plain", [this] { return signedNumber(32); });
        maybe(text, "maybe", [] { return QStringLiteral("0"); });
        maybe(text, "state", [this] { return QString::number(random.bounded(5)); });
        many(text, "states", [this] { return QString::number(random.bounded(5)); });
        maybe(text, "text", [this] { return string(); });
        maybe(text, "data", [this] { return bytes(); });
        many(text, "numbers", [this] { return unsignedNumber(32); });
        maybe(text, "ratio", [this] { return unsignedNumber(16); });
        maybe(text, "a", [this] { return signedNumber(32); });
        maybe(text, "flag", [this] { return boolean(); });
        return text + QLatin1Char('}');
    }

    QRandomGenerator random;
};

} // namespace

void tst_ProtobufRandom::randomMessages_equalThoseOfProtoc()
{
    if (protocProgram().isEmpty())
        QSKIP("protoc is not installed");
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const QString file = definitions.path(QStringLiteral("every.proto"));
    QStringList ours;
    QList<QByteArray> messages;
    for (quint32 seed = 0; seed < 40; ++seed) {
        const QByteArray bytes
            = encodeWithProtoc(file, QStringLiteral("test.Every"), RandomText(seed).every(0));
        const DecodedProtobuf message(definitions.getFormat(), bytes);
        QVERIFY(message.get() != nullptr);
        ours << QStringLiteral("message {") << textForm(message.get(), 2) << QStringLiteral("}");
        messages.append(bytes);
    }
    const QStringList theirs = decodeWithProtoc(file, QStringLiteral("test.Every"), messages);
    QVERIFY(theirs.size() > 1000);
    QCOMPARE(findDifference(ours, theirs), QString());
}

CORVANE_TEST_MAIN(tst_ProtobufRandom)

#include "tst_protobufrandom.moc"
