#include "exportdialog.h"
#include "fieldinfo.h"
#include "messageinfo.h"
#include "reception.h"
#include "testcase.h"
#include "testformat.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>

using namespace corvane;
using namespace corvane::test;

class tst_exportdialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void list_hasReceivedTypesFirst();
    void list_nothingReceived_allAreChosen();
    void order_hasWhatIsChecked();
    void order_hasFormNamesAndFile();
    void form_changesTheEndingOfTheFile();
    void search_showsMatches_andButtonsActOnThem();
    void exportButton_needsAChoiceAndAFile();
    void existingFile_isSaid();

private:
    const TestFormat format{QStringLiteral("Demo"), QStringLiteral(R"(
        Position
          lat double
          status uint16 mask {Armed=1, Moving=2}
            armed bits 0 bool
        Attitude
          roll float
          pitch float
        Empty
        Part part
          x uint8
    )")};
};

namespace {

QString nameOf(quint32 senderId)
{
    return QString::number(senderId);
}

class Shown
{
public:
    explicit Shown(const TestFormat &format, const QString &received = QString())
        : reception(format.getInfo(), nameOf, true)
    {
        if (!received.isEmpty())
            reception.receiveFrame({format.type(received), 1, 1, 0, 0});
        dialog = std::make_unique<ExportDialog>(*format.getInfo(), *reception.getStatistics(),
                                                QStringLiteral("All of it"));
        dialog->show();
        list = dialog->findChild<QTreeWidget *>();
    }

    QLineEdit *edit(const QString &accessibleName) const
    {
        for (auto *found : dialog->findChildren<QLineEdit *>())
            if (found->accessibleName() == accessibleName)
                return found;
        return nullptr;
    }

    QLineEdit *file() const { return edit(QStringLiteral("File")); }

    QPushButton *button(const QString &text) const
    {
        for (auto *found : dialog->findChildren<QPushButton *>())
            if (found->text() == text)
                return found;
        return nullptr;
    }

    bool says(const QString &text) const
    {
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            if (label->text().contains(text))
                return true;
        return false;
    }

    QTreeWidgetItem *item(const QString &name) const
    {
        return list->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

    /** "Type(field,field) Type()". */
    QString chosen() const
    {
        QStringList types;
        for (const auto &type : dialog->getOrder().selection.types) {
            QStringList fields;
            for (const FieldInfo *field : type.fields)
                fields += field->getName();
            types += QStringLiteral("%1(%2)").arg(type.info->getName(), fields.join(','));
        }
        return types.join(' ');
    }

    Reception reception;
    std::unique_ptr<ExportDialog> dialog;
    QTreeWidget *list;
};

} // namespace

void tst_exportdialog::list_hasReceivedTypesFirst()
{
    const Shown shown(format, QStringLiteral("Position"));
    QStringList rows;
    for (int i = 0; i < shown.list->topLevelItemCount(); ++i)
        rows += shown.list->topLevelItem(i)->text(0) + QLatin1Char(' ')
                + shown.list->topLevelItem(i)->text(1);
    QCOMPARE(rows, (QStringList{"Position 1", "Attitude ", "Empty "}));
    QCOMPARE(shown.chosen(), QStringLiteral("Position(lat,status)"));
    QVERIFY(shown.says(QStringLiteral("All of it")));
}

void tst_exportdialog::list_nothingReceived_allAreChosen()
{
    QCOMPARE(Shown(format).chosen(),
             QStringLiteral("Attitude(roll,pitch) Empty() Position(lat,status)"));
}

void tst_exportdialog::order_hasWhatIsChecked()
{
    const Shown shown(format, QStringLiteral("Empty"));
    QCOMPARE(shown.chosen(), QStringLiteral("Empty()"));
    shown.item(QStringLiteral("Empty"))->setCheckState(0, Qt::Unchecked);
    shown.item(QStringLiteral("pitch"))->setCheckState(0, Qt::Checked);
    shown.item(QStringLiteral("Position"))->setCheckState(0, Qt::Checked);
    QCOMPARE(shown.chosen(), QStringLiteral("Attitude(pitch) Position(lat,status)"));
}

void tst_exportdialog::order_hasFormNamesAndFile()
{
    const Shown shown(format);
    QCOMPARE(shown.dialog->getOrder().format, ExportFormat::Csv);
    QCOMPARE(shown.dialog->getOrder().names, ValueNames::Symbolic);
    shown.dialog->findChild<QComboBox *>()->setCurrentIndex(1);
    shown.dialog->findChild<QCheckBox *>()->setChecked(false);
    shown.file()->setText(QStringLiteral("/tmp/a b.txt"));
    const ExportOrder order = shown.dialog->getOrder();
    QCOMPARE(order.format, ExportFormat::JsonLines);
    QCOMPARE(order.names, ValueNames::Raw);
    QCOMPARE(order.file, QStringLiteral("/tmp/a b.txt"));
}

void tst_exportdialog::form_changesTheEndingOfTheFile()
{
    const Shown shown(format);
    auto *form = shown.dialog->findChild<QComboBox *>();
    QVERIFY(shown.file()->text().endsWith(QStringLiteral("/messages.csv")));
    form->setCurrentIndex(1);
    QVERIFY(shown.file()->text().endsWith(QStringLiteral("/messages.jsonl")));
    shown.file()->setText(QStringLiteral("/tmp/mine.txt"));
    form->setCurrentIndex(0);
    QCOMPARE(shown.file()->text(), QStringLiteral("/tmp/mine.txt"));
}

void tst_exportdialog::search_showsMatches_andButtonsActOnThem()
{
    const Shown shown(format);
    auto *search = shown.edit(QStringLiteral("Find messages and fields"));
    search->setText(QStringLiteral("ROLL"));
    QVERIFY(!shown.item(QStringLiteral("roll"))->isHidden());
    QVERIFY(shown.item(QStringLiteral("pitch"))->isHidden());
    QVERIFY(shown.item(QStringLiteral("Position"))->isHidden());
    QTest::mouseClick(shown.button(QStringLiteral("C&hoose None")), Qt::LeftButton);
    QCOMPARE(shown.chosen(), QStringLiteral("Attitude(pitch) Empty() Position(lat,status)"));
    search->clear();
    QVERIFY(!shown.item(QStringLiteral("pitch"))->isHidden());
    QTest::mouseClick(shown.button(QStringLiteral("C&hoose None")), Qt::LeftButton);
    QCOMPARE(shown.chosen(), QString());
    search->setText(QStringLiteral("Position"));
    QTest::mouseClick(shown.button(QStringLiteral("Choose &All")), Qt::LeftButton);
    QCOMPARE(shown.chosen(), QStringLiteral("Position(lat,status)"));
}

void tst_exportdialog::exportButton_needsAChoiceAndAFile()
{
    const Shown shown(format);
    const QPushButton *button = shown.button(QStringLiteral("&Export"));
    QVERIFY(button->isEnabled());
    shown.file()->setText(QStringLiteral("/"));
    QVERIFY(!button->isEnabled());
    QVERIFY(shown.says(QStringLiteral("Choose the file to write")));
    shown.file()->setText(QStringLiteral("/tmp/x/y.csv"));
    QVERIFY(button->isEnabled());
    QTest::mouseClick(shown.button(QStringLiteral("C&hoose None")), Qt::LeftButton);
    QVERIFY(!button->isEnabled());
    QVERIFY(shown.says(QStringLiteral("Choose messages or fields")));
}

void tst_exportdialog::existingFile_isSaid()
{
    const Shown shown(format);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("there.csv")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    shown.file()->setText(file.fileName());
    QVERIFY(shown.says(QStringLiteral("will be replaced")));
    shown.file()->setText(folder.filePath(QStringLiteral("new.csv")));
    QVERIFY(!shown.says(QStringLiteral("will be replaced")));
}

CORVANE_GUI_TEST_MAIN(tst_exportdialog)
#include "tst_exportdialog.moc"
