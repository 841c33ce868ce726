#include "bytespanel.h"
#include "catalogue.h"
#include "corvane.h"
#include "descriptions.h"
#include "fieldinfo.h"
#include "hexview.h"
#include "mavlinkframes.h"
#include "messageinfo.h"
#include "messagesource.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"

#include <QApplication>
#include <QLabel>

using namespace corvane;
using namespace corvane::test;

class tst_bytespanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void nothingChosen_saysWhatToDo();
    void message_isShownWithTheFieldMarked_data();
    void message_isShownWithTheFieldMarked();
    void noValue_hasItsBytes();
    void newMessages_areFollowed();
    void clearedMessage_keepsThePlace();
    void type_replacesThePlaceInAnother();
    void byte_tellsItsFieldAndGoesThere();
    void hiddenPanel_catchesUpWhenShown();
    void confidentialFields_areMasked();
    void confidentialBits_maskTheirWord();
    void formatWithoutPlaces_saysSo();
    void typeWithoutMessage_saysSo();
};

namespace {

/** STATE: big (uint32, without a value when all ones) at 0, word (uint16) at 4, list (uint8[3])
 * at 6. */
const char dialect[] = R"(
<enums><enum name="FLAGS" bitmask="true"><entry value="1" name="A"/></enum></enums>
<messages><message id="300" name="STATE">
  <field type="uint32_t" name="big" invalid="UINT32_MAX"/>
  <field type="uint16_t" name="word" enum="FLAGS"/>
  <field type="uint8_t[3]" name="list"/>
</message></messages>)";

constexpr int headerSize = 10;

class Shown
{
public:
    Shown()
    {
        format.load(folder.writeDialect("d.xml", dialect));
        type = format.getInfo()->getData()->findMessage("STATE");
        panel.show();
    }

    const FieldInfo *field(const QString &name) const { return findField(format, "STATE", name); }

    RowPlace place(const QString &name = {}, int element = -1) const
    {
        RowPlace place;
        place.type = type;
        QString path;
        for (const QString &part : name.split('.', Qt::SkipEmptyParts)) {
            path += (path.isEmpty() ? "" : ".") + part;
            place.steps.push_back({field(path), element});
            element = -1;
        }
        return place;
    }

    /** A message with that payload. */
    FrameMessage message(const char *payload) const
    {
        FrameParts parts;
        parts.id = 300;
        parts.extra = format.getChecksumExtras().value(300);
        parts.payload = fromHex(payload);
        return FrameMessage(format, frameVersion2(parts));
    }

    QString heading() const { return panel.findChildren<QLabel *>().at(0)->text(); }

    HexView *view() const { return panel.findChild<HexView *>(); }

    DialectFolder folder;
    MavlinkFormat format;
    const MessageInfo *type = nullptr;
    MessageSource source;
    BytesPanel panel{source};
};

const char payload[] = "01 02 03 04 A1 A2 B1 B2 B3";

} // namespace

void tst_bytespanel::cleanup()
{
    Corvane::setConfidentialInformationDisplayEnabled(false);
    TestCase::cleanup();
}

void tst_bytespanel::nothingChosen_saysWhatToDo()
{
    const Shown shown;
    QCOMPARE(shown.heading(), "Choose a message or a field in the tree to see its bytes.");
    QCOMPARE(shown.view()->getRowText(0), "0000    ");
}

void tst_bytespanel::message_isShownWithTheFieldMarked_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("element");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("heading");
    QTest::newRow("message") << "" << -1 << 0 << 0 << "STATE: 21 bytes.";
    QTest::newRow("field") << "big" << -1 << 0 << 4 << "STATE: 21 bytes. big: offset 10, length 4.";
    QTest::newRow("bit") << "word.A" << -1 << 4 << 2 << "STATE: 21 bytes. A: offset 14, length 2.";
    QTest::newRow("list") << "list" << -1 << 6 << 3
                          << "STATE: 21 bytes. list: offset 16, length 3.";
    QTest::newRow("element") << "list" << 1 << 7 << 1
                             << "STATE: 21 bytes. list: offset 17, length 1.";
}

void tst_bytespanel::message_isShownWithTheFieldMarked()
{
    QFETCH(QString, field);
    QFETCH(int, element);
    QFETCH(int, offset);
    QFETCH(int, length);
    Shown shown;
    const FrameMessage message = shown.message(payload);
    shown.panel.setPlace(shown.place(field, element), message.get());
    QTEST(shown.heading(), "heading");
    std::vector<ByteRange> expected;
    if (length > 0)
        expected.push_back({quint32(headerSize + offset), quint32(length)});
    QCOMPARE(shown.view()->getMarked(), expected);
    shown.view()->selectAll();
    QVERIFY(shown.view()->getSelectedText().contains(payload));
}

void tst_bytespanel::noValue_hasItsBytes()
{
    Shown shown;
    const FrameMessage message = shown.message("FF FF FF FF A1 A2 B1 B2 B3");
    QCOMPARE(shown.field("big")->getNumberOfValues(message.get()), 0u);
    shown.panel.setPlace(shown.place("big"), message.get());
    QCOMPARE(shown.heading(), "STATE: 21 bytes. big: offset 10, length 4.");
    QCOMPARE(findPlaceOfByte(message.get(), headerSize + 3)->getField(), shown.field("big"));
    shown.panel.setPlace(std::nullopt, nullptr);
}

void tst_bytespanel::newMessages_areFollowed()
{
    Shown shown;
    const FrameMessage first = shown.message(payload);
    const FrameMessage second = shown.message("00 00 00 00 00 00 00 07 00");
    shown.panel.setPlace(shown.place("list", 2), first.get());
    Q_EMIT shown.source.newMessage(second.get());
    // Zeros at the end are not sent.
    QCOMPARE(shown.heading(), "STATE: 20 bytes. list has no bytes in this message.");
    shown.panel.setPlace(std::nullopt, nullptr);
    Q_EMIT shown.source.newMessage(first.get());
    QVERIFY(shown.heading().startsWith("Choose"));
}

void tst_bytespanel::clearedMessage_keepsThePlace()
{
    Shown shown;
    const FrameMessage message = shown.message(payload);
    shown.panel.setPlace(shown.place("big"), message.get());
    shown.panel.clearMessage();
    QCOMPARE(shown.heading(), "STATE: no message of this type has come yet.");
    Q_EMIT shown.source.newMessage(message.get());
    QCOMPARE(shown.heading(), "STATE: 21 bytes. big: offset 10, length 4.");
}

void tst_bytespanel::type_replacesThePlaceInAnother()
{
    Shown shown;
    const FrameMessage message = shown.message(payload);
    shown.panel.setType(shown.type, message.get());
    QCOMPARE(shown.heading(), "STATE: 21 bytes.");
    shown.panel.setPlace(shown.place("big"), message.get());
    shown.panel.setType(shown.type, message.get());
    QVERIFY(shown.heading().contains("big"));
    const TestFormat format("Demo", "Flat\n  a int8\n");
    shown.panel.setType(format.type("Flat"), nullptr);
    QCOMPARE(shown.heading(), "Flat: no message of this type has come yet.");
    shown.panel.setPlace(std::nullopt, nullptr);
}

void tst_bytespanel::byte_tellsItsFieldAndGoesThere()
{
    Shown shown;
    const FrameMessage message = shown.message(payload);
    shown.panel.setPlace(shown.place(), message.get());
    const QLabel *selection = shown.panel.findChildren<QLabel *>().constLast();
    QStringList paths;
    connect(&shown.panel, &BytesPanel::placeActivated, this,
            [&](const RowPlace &place) { paths += place.getPath(); });
    QTest::keyClick(shown.view(), Qt::Key_Return); // of the header
    QCOMPARE(selection->text(), "Offset 0 (0x0)");
    for (int i = 0; i < headerSize + 5; ++i)
        QTest::keyClick(shown.view(), Qt::Key_Right);
    QCOMPARE(selection->text(), "Offset 15 (0xF), in word");
    QTest::keyClick(shown.view(), Qt::Key_Return);
    QTest::keyClick(shown.view(), Qt::Key_Right);
    QTest::keyClick(shown.view(), Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(selection->text(), "Offset 16 (0x10), 2 bytes, in list");
    QTest::keyClick(shown.view(), Qt::Key_Return);
    QCOMPARE(paths, QStringList({"MAVLink.STATE.word", "MAVLink.STATE.list[1]"}));
}

void tst_bytespanel::hiddenPanel_catchesUpWhenShown()
{
    Shown shown;
    shown.panel.hide();
    const FrameMessage message = shown.message(payload);
    shown.panel.setPlace(shown.place(), message.get());
    QVERIFY(shown.heading().startsWith("Choose"));
    shown.panel.show();
    QCOMPARE(shown.heading(), "STATE: 21 bytes.");
}

void tst_bytespanel::confidentialFields_areMasked()
{
    Shown shown;
    shown.field("big")->getData()->confidential = true;
    const FrameMessage message = shown.message(payload);
    shown.panel.setPlace(shown.place("word"), message.get());
    shown.view()->selectAll();
    const QString dots = QString::fromUtf8("··");
    const QStringList digits = shown.view()->getSelectedText().split(' ');
    QCOMPARE(digits.mid(headerSize, 9),
             QStringList({dots, dots, dots, dots, "A1", "A2", "B1", "B2", "B3"}));
    // From a checksum and all bytes but one, that one could be told.
    QCOMPARE(digits.mid(headerSize + 9), QStringList({dots, dots}));
    QVERIFY(shown.heading().contains("Masked"));
    QVERIFY(!findPlaceOfByte(message.get(), headerSize));
    Corvane::setConfidentialInformationDisplayEnabled(true);
    QVERIFY(!shown.view()->getRowText(0).contains(dots));
    QVERIFY(!shown.heading().contains("Masked"));
    QVERIFY(findPlaceOfByte(message.get(), headerSize));
}

void tst_bytespanel::confidentialBits_maskTheirWord()
{
    Shown shown;
    shown.field("word.A")->getData()->confidential = true;
    const FrameMessage message = shown.message(payload);
    shown.panel.setPlace(shown.place(), message.get());
    shown.view()->selectAll();
    const QString dots = QString::fromUtf8("··");
    QCOMPARE(shown.view()->getSelectedText().split(' ').mid(headerSize, 9),
             QStringList({"01", "02", "03", "04", dots, dots, "B1", "B2", "B3"}));
}

void tst_bytespanel::formatWithoutPlaces_saysSo()
{
    const TestFormat format("Demo", "Flat\n  a int8\n  sum int8 virtual\n");
    TestSource source(format);
    BytesPanel panel(source);
    panel.show();
    const auto message = format.message("Flat{a: 1}");
    RowPlace place;
    place.type = format.type("Flat");
    place.steps = {{format.field("Flat.a"), -1}};
    panel.setPlace(place, message.get());
    const QLabel *heading = panel.findChildren<QLabel *>().at(0);
    QCOMPARE(heading->text(), "Flat: this message did not come as bytes.");
    QVERIFY(!knowsByteRanges(message.get()));
}

void tst_bytespanel::typeWithoutMessage_saysSo()
{
    Shown shown;
    shown.panel.setPlace(shown.place(), nullptr);
    QCOMPARE(shown.heading(), "STATE: no message of this type has come yet.");
}

CORVANE_GUI_TEST_MAIN(tst_bytespanel)
#include "tst_bytespanel.moc"
