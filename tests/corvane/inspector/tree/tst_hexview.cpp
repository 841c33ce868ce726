#include "hexview.h"
#include "testcase.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>

using namespace corvane;
using namespace corvane::test;

class tst_hexview : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rows_haveOffsetDigitsAndCharacters();
    void columns_areAsManyAsThereIsRoomFor();
    void keys_moveAndSelect_data();
    void keys_moveAndSelect();
    void controlC_copiesDigits();
    void maskedBytes_areNeitherShownNorCopied();
    void mouse_selectsDigitsAndCharacters();
    void marked_isPaintedAndScrolledTo();
    void newBytes_keepTheSelectionThatIsLeft();
    void noBytes_doNoHarm();
    void colours_areThoseOfThePalette();
};

namespace {

QByteArray counting(int size)
{
    QByteArray bytes;
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(i);
    return bytes;
}

class Shown
{
public:
    explicit Shown(const QByteArray &bytes = counting(64))
    {
        view.resize(view.fontMetrics().averageCharWidth() * 90, 200);
        view.setBytes(bytes, std::vector<bool>(static_cast<size_t>(bytes.size()), true));
        view.show();
        view.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&view));
    }

    HexView view;
};

} // namespace

void tst_hexview::rows_haveOffsetDigitsAndCharacters()
{
    const Shown shown("\x01 A~\x7F\xFFxyz 0123456789");
    QCOMPARE(shown.view.getBytesPerRow(), 16);
    QCOMPARE(shown.view.getRowText(0),
             "0000  01 20 41 7E 7F FF 78 79 7A 20 30 31 32 33 34 35  . A~..xyz 012345");
    QCOMPARE(shown.view.getRowText(1), "0010  36 37 38 39  6789");
}

void tst_hexview::columns_areAsManyAsThereIsRoomFor()
{
    Shown shown;
    const int character = shown.view.fontMetrics().horizontalAdvance('0');
    shown.view.resize(character * 50, 200);
    QCOMPARE(shown.view.getBytesPerRow(), 8);
    QCOMPARE(shown.view.horizontalScrollBar()->maximum(), 0);
    shown.view.resize(character * 10, 200);
    QCOMPARE(shown.view.getBytesPerRow(), 4);
    QVERIFY(shown.view.horizontalScrollBar()->maximum() > 0);
}

void tst_hexview::keys_moveAndSelect_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("length");
    QTest::newRow("right") << QStringList{"Right", "Right"} << 2 << 1;
    QTest::newRow("left of the first") << QStringList{"Left"} << 0 << 1;
    QTest::newRow("down") << QStringList{"Right", "Down"} << 17 << 1;
    QTest::newRow("up of the first row") << QStringList{"Right", "Up"} << 1 << 1;
    QTest::newRow("end of row") << QStringList{"End"} << 15 << 1;
    QTest::newRow("end") << QStringList{"Ctrl+End"} << 63 << 1;
    QTest::newRow("home") << QStringList{"Ctrl+End", "Home"} << 48 << 1;
    QTest::newRow("begin") << QStringList{"Ctrl+End", "Ctrl+Home"} << 0 << 1;
    QTest::newRow("page") << QStringList{"PgDown"} << 63 << 1;
    QTest::newRow("select") << QStringList{"Right", "Shift+Right", "Shift+Right"} << 1 << 3;
    QTest::newRow("select back") << QStringList{"Down", "Shift+Up"} << 0 << 17;
    QTest::newRow("move ends selecting") << QStringList{"Shift+End", "Right"} << 16 << 1;
    QTest::newRow("all") << QStringList{"Ctrl+A"} << 0 << 64;
}

void tst_hexview::keys_moveAndSelect()
{
    QFETCH(QStringList, keys);
    QFETCH(int, offset);
    QFETCH(int, length);
    Shown shown;
    for (const QString &text : keys) {
        const QKeyCombination key = QKeySequence(text)[0];
        QTest::keyClick(&shown.view, key.key(), key.keyboardModifiers());
    }
    QCOMPARE(int(shown.view.getSelection().offset), offset);
    QCOMPARE(int(shown.view.getSelection().length), length);
}

void tst_hexview::controlC_copiesDigits()
{
    Shown shown("\xFE\x09 !");
    QTest::keyClick(&shown.view, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&shown.view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), "FE 09");
}

void tst_hexview::maskedBytes_areNeitherShownNorCopied()
{
    Shown shown;
    shown.view.setBytes("ABCD", {true, false, false, true});
    QCOMPARE(shown.view.getRowText(0), QString::fromUtf8("0000  41 ·· ·· 44  A··D"));
    shown.view.selectAll();
    shown.view.copy();
    QCOMPARE(QApplication::clipboard()->text(), QString::fromUtf8("41 ·· ·· 44"));
    const QImage first = shown.view.grab().toImage();
    shown.view.setBytes("AxyD", {true, false, false, true});
    QCOMPARE(shown.view.grab().toImage(), first);
}

void tst_hexview::mouse_selectsDigitsAndCharacters()
{
    Shown shown;
    const int character = shown.view.fontMetrics().horizontalAdvance('0');
    const int row = shown.view.fontMetrics().height();
    const auto digits = [&](int column) { // a margin, the offset, two blanks, groups of four
        return character * (1 + 4 + 2 + column * 3 + column / 4) + character / 2;
    };
    const auto pointAt = [&](int x, int line) { return QPoint(x, line * row + row / 2); };
    QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, {}, pointAt(digits(5), 1));
    QCOMPARE(shown.view.getSelection(), (ByteRange{21, 1}));
    QSignalSpy activated(&shown.view, &HexView::activated);
    QTest::mouseDClick(shown.view.viewport(), Qt::LeftButton, {}, pointAt(digits(5), 1));
    QCOMPARE(activated.value(0).value(0).toInt(), 21);
    QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      pointAt(digits(0), 2));
    QCOMPARE(shown.view.getSelection(), (ByteRange{21, 12}));
    const int characters = digits(15) + character * 5;
    QTest::mousePress(shown.view.viewport(), Qt::LeftButton, {}, pointAt(characters, 0));
    QTest::mouseMove(shown.view.viewport(), pointAt(characters + 3 * character, 0));
    QCOMPARE(shown.view.getSelection(), (ByteRange{0, 4}));
    QTest::mouseRelease(shown.view.viewport(), Qt::LeftButton, {},
                        pointAt(characters + 3 * character, 0));
}

void tst_hexview::marked_isPaintedAndScrolledTo()
{
    Shown shown(counting(200) + counting(200) + counting(200));
    const QImage before = shown.view.grab().toImage();
    shown.view.setMarked({{2, 3}});
    QVERIFY(shown.view.grab().toImage() != before);
    QCOMPARE(shown.view.verticalScrollBar()->value(), 0);
    shown.view.setMarked({{560, 8}});
    QVERIFY(shown.view.verticalScrollBar()->value() > 20);
    // People may scroll away while messages come.
    shown.view.verticalScrollBar()->setValue(3);
    shown.view.setMarked({{560, 8}});
    QCOMPARE(shown.view.verticalScrollBar()->value(), 3);
}

void tst_hexview::newBytes_keepTheSelectionThatIsLeft()
{
    Shown shown;
    QTest::keyClick(&shown.view, Qt::Key_End);
    QTest::keyClick(&shown.view, Qt::Key_Right, Qt::ShiftModifier);
    shown.view.setBytes(counting(64), std::vector<bool>(64, true));
    QCOMPARE(shown.view.getSelection(), (ByteRange{15, 2}));
    shown.view.setBytes(counting(4), std::vector<bool>(4, true));
    QCOMPARE(shown.view.getSelection(), (ByteRange{3, 1}));
}

void tst_hexview::noBytes_doNoHarm()
{
    Shown shown(QByteArray{});
    QApplication::clipboard()->setText("before");
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Down, Qt::Key_End, Qt::Key_PageDown})
        QTest::keyClick(&shown.view, key);
    shown.view.selectAll();
    shown.view.copy();
    QTest::mouseClick(shown.view.viewport(), Qt::LeftButton);
    QCOMPARE(shown.view.getSelection(), ByteRange());
    QCOMPARE(QApplication::clipboard()->text(), "before");
    shown.view.setMarked({{7, 1}}); // of a longer message
    shown.view.grab();
}

void tst_hexview::colours_areThoseOfThePalette()
{
    Shown shown;
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(10, 20, 30));
    dark.setColor(QPalette::Text, QColor(200, 210, 220));
    shown.view.setPalette(dark);
    const QImage image = shown.view.viewport()->grab().toImage();
    QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1), QColor(10, 20, 30));
    bool hasText = false;
    for (int x = 0; x < image.width() && !hasText; ++x)
        for (int y = 0; y < 60 && !hasText; ++y)
            hasText = image.pixelColor(x, y) == QColor(200, 210, 220);
    QVERIFY(hasText);
}

CORVANE_GUI_TEST_MAIN(tst_hexview)
#include "tst_hexview.moc"
