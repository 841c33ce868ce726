#include "csvparser.h"
#include "fieldvaluelabel.h"
#include "mainwindow.h"
#include "mavlinkframes.h"
#include "message.h"
#include "messageexport.h"
#include "messagetreewidget.h"
#include "protobufmessages.h"
#include "report.h"
#include "session.h"
#include "testcase.h"
#include "watchpanel.h"
#include "workbench.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QHelpEvent>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolTip>
#include <QTreeWidgetItemIterator>

using namespace corvane;
using namespace corvane::test;

/** Texts in messages and definitions that are made to do harm: they are shown and written as texts.
 */
class tst_hostiletext : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void text_isShownAsText_data();
    void text_isShownAsText();
    void text_isExportedAsText_data();
    void text_isExportedAsText();
    void overlayTexts_areShownAsTexts();
    void toolTips_areTexts();
    void reportForPeople_hasNoControlCharacters();
    void endlessTexts_areShownAtOnce_data();
    void endlessTexts_areShownAtOnce();
};

namespace {

constexpr int textSize = 60;
const char dialect[] = R"(<messages>
    <message id="1" name="TALK">
      <description>&lt;h1&gt;Big&lt;/h1&gt; R&amp;D</description>
      <field type="uint8_t" name="level" units="&lt;b&gt;m&lt;/b&gt;">d</field>
      <field type="char[60]" name="text">t</field>
    </message>
  </messages>)";

const char overlay[] = R"({"format": "MAVLink", "messages": {"TALK": {
    "displayName": "<i>Talk</i>\u001b[31m\u202e",
    "fields": {"level": {"displayName": "<b>Level</b>", "unit": "<u>\u0000</u>",
                         "symbols": {"7": "<s>seven</s>\nand a line"}}}}}})";

/** Texts by what they try. */
void addTexts()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const QByteArray &bytes, const QString &text = {}) {
        QTest::newRow(name) << bytes << (text.isNull() ? QString::fromUtf8(bytes) : text);
    };
    row("markup", "<b>bold</b><img src='file:///x'>");
    row("entity", "&lt;&#0;");
    row("bidirectional marks", "\xe2\x80\xaegnp.exe\xe2\x81\xa6");
    row("control characters", "\x1b[31m\x07\x08 \x7f");
    row("lines", "a\nb\r\nc\td");
    row("quotes and commas", "\"a\",\"b\";'");
    row("formula", "=cmd|' /C calc'!A0");
    row("combining characters", "e\xcc\x81\xcc\x81\xcc\x81\xcc\x81");
    row("invalid UTF-8", "a\xff\xc3(\xf0\x9f", QString::fromUtf8("a\xff\xc3(\xf0\x9f"));
    row("behind a NUL", QByteArray("seen\0hidden", 11), "seen");
}

/** A dialect, a recording of one message with a text in it, and the program that shows them. */
class Shown
{
public:
    explicit Shown(const QByteArray &text, const QByteArray &overlayText = {})
    {
        definitions = folder.writeDialect(QStringLiteral("talk.xml"), dialect);
        MavlinkFormat format;
        format.load(definitions);
        const QByteArray payload = '\x07' + text + QByteArray(textSize - text.size(), '\0');
        stream = frameVersion2(
            {.id = 1, .extra = format.getChecksumExtras().value(1), .payload = payload});
        options.definitions = {definitions};
        if (!overlayText.isEmpty())
            options.overlays = {folder.write(QStringLiteral("talk.json"), overlayText)};
        options.source
            = SourceAddress::parse(folder.write(QStringLiteral("talk.bin"), stream)).address;
        options.speed = std::nullopt;
    }

    void open()
    {
        workbench = std::make_unique<Workbench>(options, settings);
        if (const QStringList errors = workbench->open(options); !errors.isEmpty())
            qFatal("%s", qPrintable(errors.join('\n')));
        QTRY_VERIFY(tree()->topLevelItemCount() > 0);
        window()->findChild<WatchPanel *>()->watch(QStringLiteral("MAVLink.TALK.text"));
    }

    QWidget *window() const { return workbench->getWindow(); }

    MessageTreeWidget *tree() const { return window()->findChild<MessageTreeWidget *>(); }

    QList<QLabel *> labels() const { return window()->findChildren<QLabel *>(); }

    bool hasCell(const QString &text) const
    {
        for (QTreeWidgetItemIterator item(tree()); *item != nullptr; ++item)
            for (int column = 0; column < tree()->columnCount(); ++column)
                if ((*item)->text(column) == text)
                    return true;
        return false;
    }

    int countLabels(const QString &text) const
    {
        const auto all = labels();
        return static_cast<int>(std::count_if(all.begin(), all.end(), [&text](const QLabel *label) {
            return label->text() == text;
        }));
    }

    DialectFolder folder;
    QString definitions;
    QByteArray stream;
    Options options;
    QSettings settings{folder.getPath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    std::unique_ptr<Workbench> workbench;
};

/** No label follows markup, and no row of the tree is higher than some lines. */
void checkLooks(const Shown &shown)
{
    for (const QLabel *label : shown.labels())
        QVERIFY2(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()),
                 qPrintable(label->text()));
    const int highest = 5 * shown.tree()->fontMetrics().lineSpacing();
    for (QTreeWidgetItemIterator item(shown.tree()); *item != nullptr; ++item)
        QVERIFY(shown.tree()->visualItemRect(*item).height() <= highest);
}

QByteArray exported(Shown &shown, ExportFormat format)
{
    Session session;
    if (!session.load(shown.options).isEmpty())
        qFatal("the definitions do not load");
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    MessageExport messages(buffer, selectForExport({}).selection,
                           session.getReception().getSenders(), format, ValueNames::Symbolic);
    QObject::connect(&session.getReception(), &MessageSource::newMessage, &session,
                     [&messages](const Message *message) { messages.write(message); });
    QSignalSpy finished(&session, &Session::finished);
    session.start(shown.options);
    if (finished.isEmpty())
        finished.wait();
    messages.flush();
    return buffer.data();
}

} // namespace

void tst_hostiletext::text_isShownAsText_data()
{
    addTexts();
}

void tst_hostiletext::text_isShownAsText()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    Shown shown(bytes);
    shown.open();
    QTRY_VERIFY(shown.hasCell(text));
    QTRY_COMPARE(shown.countLabels(text), 2); // in the form and in the watch list
    checkLooks(shown);
}

void tst_hostiletext::text_isExportedAsText_data()
{
    addTexts();
}

void tst_hostiletext::text_isExportedAsText()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    Shown shown(bytes);

    const QByteArray json = exported(shown, ExportFormat::JsonLines);
    QCOMPARE(json.count('\n'), 1);
    QCOMPARE(QJsonDocument::fromJson(json)["fields"]["text"].toString(), text);

    const auto rows = CsvParser::parse(exported(shown, ExportFormat::Csv));
    QVERIFY(rows);
    QCOMPARE(rows->size(), 2);
    QCOMPARE(rows->at(1).constLast(), text);
}

void tst_hostiletext::overlayTexts_areShownAsTexts()
{
    Shown shown("words", overlay);
    shown.open();
    QTRY_VERIFY(shown.hasCell(QStringLiteral("<b>Level</b>")));
    QTRY_VERIFY(shown.hasCell(QStringLiteral("<s>seven</s>\nand a line")));
    QCOMPARE(shown.countLabels(QStringLiteral("<b>Level</b>")), 1);
    checkLooks(shown);
}

void tst_hostiletext::toolTips_areTexts()
{
    QApplication::setEffectEnabled(Qt::UI_FadeTooltip, false);
    QApplication::setEffectEnabled(Qt::UI_AnimateTooltip, false);
    Shown shown("words");
    shown.open();
    QList<const QTreeView *> views{shown.tree()};
    views += shown.window()->findChild<QTreeView *>(QStringLiteral("typeView"));
    for (const QTreeView *view : std::as_const(views)) {
        expectWarning(QStringLiteral("raise()")); // which the platform without a display lacks
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        const QPoint place = view->visualRect(view->model()->index(0, 0)).center();
        QHelpEvent event(QEvent::ToolTip, place, view->viewport()->mapToGlobal(place));
        QApplication::sendEvent(view->viewport(), &event);
        QVERIFY2(QToolTip::text().contains(QStringLiteral("&lt;h1&gt;Big&lt;/h1&gt; R&amp;D")),
                 qPrintable(QToolTip::text()));
    }
}

void tst_hostiletext::reportForPeople_hasNoControlCharacters()
{
    const Shown shown("words", overlay);
    Session session;
    QCOMPARE(session.load(shown.options), QStringList());
    QSignalSpy finished(&session, &Session::finished);
    session.start(shown.options);
    QVERIFY(!finished.isEmpty() || finished.wait());
    const QString report = QString::fromUtf8(
        makeTextReport(QStringLiteral("file \x1b]0;title\x07"), session.getReception(), {}));
    QVERIFY(report.contains(QStringLiteral("<i>Talk</i>")));
    for (const QChar character : report)
        QVERIFY(character == QLatin1Char('\n') || character.category() != QChar::Other_Control);
}

void tst_hostiletext::endlessTexts_areShownAtOnce_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("letters") << QString(1'000'000, QLatin1Char('x'));
    QTest::newRow("combining characters") << 'e' + QString(1'000'000, QChar(0x301));
    QTest::newRow("lines") << QStringLiteral("l\n").repeated(500'000);
    QTest::newRow("changes of direction") << QString::fromUtf8("\u202ea\u202c").repeated(300'000);
}

void tst_hostiletext::endlessTexts_areShownAtOnce()
{
    QFETCH(QString, text);
    const QString proto = QStringLiteral(
        "syntax = \"proto3\"; message Endless { string text = 1; repeated string list = 2; }");
    ProtobufDefinitions definitions({{QStringLiteral("endless.proto"), proto}});
    const QByteArray field = framedVarint(text.toUtf8());
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("stream.bin")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(framedVarint('\x0a' + field + '\x12' + field));
    file.close();

    Options options;
    options.definitions = {definitions.path(QStringLiteral("endless.proto"))};
    options.source = SourceAddress::parse(file.fileName()).address;
    options.speed = std::nullopt;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    Workbench workbench(options, settings);
    QCOMPARE(workbench.open(options), QStringList());
    auto *watch = workbench.getWindow()->findChild<WatchPanel *>();
    watch->watch(QStringLiteral("Protocol Buffers.Endless.*"));
    auto *tree = workbench.getWindow()->findChild<MessageTreeWidget *>();

    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(tree->topLevelItemCount() > 0);
    tree->expandAll();
    for (QTreeWidgetItemIterator item(tree); *item != nullptr; ++item) {
        tree->setCurrentItem(*item);
        workbench.getWindow()->grab();
    }
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    const int highest = 5 * tree->fontMetrics().lineSpacing();
    for (QTreeWidgetItemIterator item(tree); *item != nullptr; ++item)
        QVERIFY(tree->visualItemRect(*item).height() <= highest);
    for (const QLabel *label : workbench.getWindow()->findChildren<QLabel *>())
        QVERIFY(label->text().size() <= 1001);
}

CORVANE_GUI_TEST_MAIN(tst_hostiletext)
#include "tst_hostiletext.moc"
