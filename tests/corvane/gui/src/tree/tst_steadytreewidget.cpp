#include "steadytreewidget.h"
#include "testcase.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyledItemDelegate>

#include <functional>

using namespace corvane::test;

/**
 * The tree looks and behaves as a QTreeWidget does: both are driven with the same random
 * operations and compared after each. CORVANE_COMPARATOR_SEEDS and CORVANE_COMPARATOR_STEPS set how
 * many.
 */
class TestSteadyTreeWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void randomOperations_leaveNoDifference_data();
    void randomOperations_leaveNoDifference();
    void comparator_findsNothingBetweenEqualTrees();
    void comparator_findsANaiveOverride();
    void plainChange_asksForOneRepaint();
    void slot_thatSetsAnotherText_isMeasured();
    void hidden_andExpanded_changeOnlyWhatDiffers();
    void removeChildren_keepsTheRest();
    void removeChildren_sorted();
    void removeChildren_ofTheCurrentItem();
    void items_outsideOfATree();
    void endlessText_isShownShortened_data();
    void endlessText_isShownShortened();
};

namespace {

/** Never measures anything. */
class NaiveTree : public QTreeWidget
{
public:
    void dataChanged(const QModelIndex &, const QModelIndex &, const QList<int> &) override
    {
        viewport()->update();
    }
};

const QStringList texts{"1",
                        "22",
                        "-3.5e7",
                        "Auto | Manual",
                        "",
                        "two\nlines",
                        QString::fromUtf8("größer"),
                        QString::fromUtf8("日本語"),
                        QString::fromUtf8("مرحبا"),
                        QString::fromUtf8("😀 emoji"),
                        QString::fromUtf8("z\u0325\u0345\u0300"),
                        "tab\there",
                        QString(QChar(0x2028)),
                        QString::fromUtf8("½ ± µ °"),
                        "a much longer text that needs its room"};

/** Two trees that undergo the same. */
class Pair
{
public:
    explicit Pair(QTreeWidget *tested)
        : other(tested)
    {
        window.resize(620, 250);
        for (QTreeWidget *tree : trees()) {
            tree->setParent(&window); // what has the focus or is active looks different
            tree->setFocusPolicy(Qt::NoFocus);
            tree->setColumnCount(3);
            tree->setGeometry(tree == other ? 310 : 0, 0, 300, 240);
            for (int i = 0; i < 12; ++i)
                addRow(new QTreeWidgetItem(tree), 0);
        }
        window.show();
        QApplication::processEvents();
    }

    QList<QTreeWidget *> trees() { return {stock, other}; }

    /**
     * What stays different, or nothing. Hiding a column, opening an editor and painting leave work
     * for the next round of events, which also stock trees do not always do in the same round.
     */
    QString difference()
    {
        constexpr int rounds = 4;
        QString found = differenceNow();
        for (int i = 1; i < rounds && !found.isEmpty(); ++i)
            found = differenceNow();
        return found;
    }

    /** Does the same random thing to both. */
    void step(QRandomGenerator &random)
    {
        const auto what = random.bounded(40);
        const quint32 rowChoice = random.generate();
        const quint32 choice = random.generate();
        for (QTreeWidget *tree : trees()) {
            const auto rows = rowsOf(tree);
            if (rows.isEmpty())
                addRow(new QTreeWidgetItem(tree), 0);
            else
                change(tree, rows.at(rowChoice % static_cast<quint32>(rows.size())),
                       static_cast<int>(what), static_cast<int>(choice % 100'000));
        }
    }

private:
    QString differenceNow()
    {
        if (QWidget *focused = QApplication::focusWidget())
            focused->clearFocus();
        QApplication::processEvents();
        if (stock->verticalScrollBar()->maximum() != other->verticalScrollBar()->maximum()
            || stock->verticalScrollBar()->value() != other->verticalScrollBar()->value()
            || stock->horizontalScrollBar()->value() != other->horizontalScrollBar()->value())
            return "scroll bars";
        for (int column = 0; column < stock->columnCount(); ++column)
            if (stock->columnWidth(column) != other->columnWidth(column))
                return "column widths";
        QTreeWidgetItemIterator left(stock);
        QTreeWidgetItemIterator right(other);
        for (; *left != nullptr && *right != nullptr; ++left, ++right)
            if (stock->visualItemRect(*left) != other->visualItemRect(*right))
                return "rectangle of " + (*left)->text(0);
        if ((*left == nullptr) != (*right == nullptr))
            return "number of rows";
        return stock->viewport()->grab().toImage() == other->viewport()->grab().toImage()
                   ? QString()
                   : "pixels";
    }

    static void addRow(QTreeWidgetItem *row, int choice)
    {
        row->setFlags(row->flags() | Qt::ItemIsEditable);
        for (int column = 0; column < 3; ++column)
            SteadyTreeWidget::setItemText(row, column, QString::number(choice + column));
    }

    static QList<QTreeWidgetItem *> rowsOf(QTreeWidget *tree)
    {
        QList<QTreeWidgetItem *> rows;
        for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it)
            rows += *it;
        return rows;
    }

    static void change(QTreeWidget *tree, QTreeWidgetItem *row, int what, int choice)
    {
        const int column = choice % 3;
        switch (what) {
        case 0:
            addRow(new QTreeWidgetItem(tree), choice);
            return;
        case 1:
            addRow(new QTreeWidgetItem(row), choice);
            return;
        case 2:
            delete row;
            return;
        case 3:
            SteadyTreeWidget::setItemExpanded(row, choice % 2 == 0);
            return;
        case 4:
            SteadyTreeWidget::setItemHidden(row, choice % 3 == 0);
            return;
        case 5: {
            QFont font = tree->font();
            font.setPointSize(6 + choice % 14);
            row->setFont(column, choice % 2 == 0 ? font : tree->font());
            return;
        }
        case 6:
            row->setSizeHint(column, choice % 2 == 0 ? QSize(20, choice % 60) : QSize());
            return;
        case 7:
            tree->verticalScrollBar()->setValue(choice % 30);
            return;
        case 8:
            tree->setColumnHidden(column, choice % 2 == 0);
            return;
        case 9:
            tree->setWordWrap(choice % 4 == 0);
            return;
        case 10:
            tree->setLayoutDirection(choice % 3 == 0 ? Qt::RightToLeft : Qt::LeftToRight);
            return;
        case 11:
            tree->sortItems(column, choice % 2 == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            return;
        case 12:
            tree->resizeColumnToContents(column);
            return;
        case 13:
            if (choice % 2 == 0)
                tree->openPersistentEditor(row, column);
            else
                tree->closePersistentEditor(row, column);
            return;
        case 14:
            tree->setItemWidget(row, column,
                                choice % 2 == 0 ? new QLineEdit(QString::number(choice)) : nullptr);
            return;
        case 15:
            tree->setStyleSheet(choice % 3 == 0 ? "QTreeView::item { padding: 3px; }" : QString());
            return;
        case 16: {
            QFont font = tree->font();
            font.setPointSize(7 + choice % 8);
            tree->setFont(font);
            return;
        }
        case 17: {
            QList<QTreeWidgetItem *> doomed;
            for (int i = row->childCount() / 2; i < row->childCount(); ++i)
                doomed += row->child(i);
            SteadyTreeWidget::removeChildren(row, doomed);
            return;
        }
        case 18:
            row->setText(column, texts.at(choice % texts.size())); // another way to change it
            return;
        default:
            SteadyTreeWidget::setItemText(row, column, texts.at(choice % texts.size()));
        }
    }

    QWidget window;
    QTreeWidget *stock = new QTreeWidget; ///< Owned by the window, as the other.
    QTreeWidget *other;
};

int numberFrom(const char *variable, int fallback)
{
    const int number = qEnvironmentVariableIntValue(variable);
    return number > 0 ? number : fallback;
}

/** Runs one seed; what was different first, or nothing. */
QString firstDifference(QTreeWidget *tested, quint32 seed, int steps)
{
    Pair pair(tested);
    QRandomGenerator random(seed);
    for (int i = 0; i < steps; ++i) {
        pair.step(random);
        if (const QString difference = pair.difference(); !difference.isEmpty())
            return QStringLiteral("seed %1, step %2: %3").arg(seed).arg(i).arg(difference);
    }
    return {};
}

int updateRequests(QWidget *widget, const std::function<void()> &action)
{
    class Counter : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }

        int count = 0;
    };

    QApplication::processEvents();
    Counter counter;
    widget->installEventFilter(&counter);
    action();
    QApplication::processEvents();
    return counter.count;
}

} // namespace

void TestSteadyTreeWidget::randomOperations_leaveNoDifference_data()
{
    QTest::addColumn<quint32>("seed");
    const int seeds = numberFrom("CORVANE_COMPARATOR_SEEDS", 6);
    for (int seed = 1; seed <= seeds; ++seed)
        QTest::addRow("seed %d", seed) << static_cast<quint32>(seed);
}

void TestSteadyTreeWidget::randomOperations_leaveNoDifference()
{
    QFETCH(quint32, seed);
    const QString difference
        = firstDifference(new SteadyTreeWidget, seed, numberFrom("CORVANE_COMPARATOR_STEPS", 150));
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void TestSteadyTreeWidget::comparator_findsNothingBetweenEqualTrees()
{
    const QString difference = firstDifference(new QTreeWidget, 4, 150);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void TestSteadyTreeWidget::comparator_findsANaiveOverride()
{
    QVERIFY(!firstDifference(new NaiveTree, 1, 150).isEmpty());
}

void TestSteadyTreeWidget::plainChange_asksForOneRepaint()
{
    SteadyTreeWidget tree;
    tree.setColumnCount(2);
    for (int i = 0; i < 50; ++i)
        new QTreeWidgetItem(&tree, {"name", "1.5"});
    tree.show();
    const QSignalSpy changes(&tree, &QTreeWidget::itemChanged);
    QCOMPARE(updateRequests(tree.viewport(),
                            [&] {
                                for (int i = 0; i < 50; ++i)
                                    SteadyTreeWidget::setItemText(tree.topLevelItem(i), 1, "2.5");
                            }),
             1);
    QCOMPARE(changes.size(), 50);
    QCOMPARE(updateRequests(tree.viewport(),
                            [&] { SteadyTreeWidget::setItemText(tree.topLevelItem(0), 1, "3"); }),
             1);
}

void TestSteadyTreeWidget::slot_thatSetsAnotherText_isMeasured()
{
    SteadyTreeWidget tree;
    auto *item = new QTreeWidgetItem(&tree, QStringList("one"));
    new QTreeWidgetItem(&tree, QStringList("below"));
    tree.show();
    QApplication::processEvents();
    const int before = tree.visualItemRect(item).height();
    connect(&tree, &QTreeWidget::itemChanged, this,
            [](QTreeWidgetItem *changed) { changed->setText(0, "two\nlines"); });
    SteadyTreeWidget::setItemText(item, 0, "two");
    QApplication::processEvents();
    QVERIFY(tree.visualItemRect(item).height() > before);
}

void TestSteadyTreeWidget::hidden_andExpanded_changeOnlyWhatDiffers()
{
    SteadyTreeWidget tree;
    auto *item = new QTreeWidgetItem(&tree);
    new QTreeWidgetItem(item);
    const QSignalSpy expanded(&tree, &QTreeWidget::itemExpanded);
    SteadyTreeWidget::setItemExpanded(item, true);
    SteadyTreeWidget::setItemExpanded(item, true);
    QCOMPARE(expanded.size(), 1);
    SteadyTreeWidget::setItemHidden(item, true);
    QVERIFY(item->isHidden());
    SteadyTreeWidget::setItemHidden(item, false);
    QVERIFY(!item->isHidden());
    // What is expanded before it has children shows them when they come.
    auto *leaf = new QTreeWidgetItem(&tree);
    SteadyTreeWidget::setItemExpanded(leaf, true);
    new QTreeWidgetItem(leaf);
    QVERIFY(leaf->isExpanded());
}

void TestSteadyTreeWidget::removeChildren_keepsTheRest()
{
    SteadyTreeWidget tree;
    tree.resize(200, 150);
    auto *parent = new QTreeWidgetItem(&tree, QStringList("parent"));
    parent->setExpanded(true);
    for (int i = 0; i < 60; ++i) {
        auto *child = new QTreeWidgetItem(parent, QStringList(QString::number(i)));
        new QTreeWidgetItem(child, QStringList("inner"));
        child->setExpanded(i % 2 == 0);
    }
    tree.show();
    tree.setCurrentItem(parent->child(3));
    tree.verticalScrollBar()->setValue(10);
    QApplication::processEvents();
    const QSignalSpy expanded(&tree, &QTreeWidget::itemExpanded);
    const QSignalSpy collapsed(&tree, &QTreeWidget::itemCollapsed);
    const QSignalSpy current(&tree, &QTreeWidget::currentItemChanged);
    const QSignalSpy selection(&tree, &QTreeWidget::itemSelectionChanged);
    QList<QTreeWidgetItem *> doomed;
    for (int i = 30; i < 60; ++i)
        doomed += parent->child(i);
    SteadyTreeWidget::removeChildren(parent, doomed);
    QApplication::processEvents();
    QCOMPARE(parent->childCount(), 30);
    for (int i = 0; i < 30; ++i) {
        QCOMPARE(parent->child(i)->text(0), QString::number(i));
        QCOMPARE(parent->child(i)->isExpanded(), i % 2 == 0);
    }
    QCOMPARE(expanded.size() + collapsed.size() + current.size() + selection.size(), 0);
    QCOMPARE(tree.currentItem(), parent->child(3));
    QCOMPARE(tree.verticalScrollBar()->value(), 10);
}

void TestSteadyTreeWidget::removeChildren_sorted()
{
    SteadyTreeWidget tree;
    auto *parent = new QTreeWidgetItem(&tree, QStringList("parent"));
    QList<QTreeWidgetItem *> doomed;
    for (int i = 0; i < 40; ++i) {
        auto *child = new QTreeWidgetItem(parent, QStringList(QString::number(i)));
        if (i >= 20)
            doomed += child;
    }
    tree.sortItems(0, Qt::DescendingOrder);
    SteadyTreeWidget::removeChildren(parent, doomed);
    QCOMPARE(parent->childCount(), 20);
    for (int i = 0; i < 20; ++i)
        QVERIFY(parent->child(i)->text(0).toInt() < 20);
}

void TestSteadyTreeWidget::removeChildren_ofTheCurrentItem()
{
    SteadyTreeWidget tree;
    tree.resize(200, 150);
    auto *parent = new QTreeWidgetItem(&tree, QStringList("parent"));
    parent->setExpanded(true);
    QList<QTreeWidgetItem *> doomed;
    for (int i = 0; i < 60; ++i) {
        auto *child = new QTreeWidgetItem(parent, QStringList(QString::number(i)));
        if (i >= 20)
            doomed += child;
    }
    tree.show();
    tree.setCurrentItem(parent->child(45));
    tree.verticalScrollBar()->setValue(5);
    QApplication::processEvents();
    const QSignalSpy current(&tree, &QTreeWidget::currentItemChanged);
    SteadyTreeWidget::removeChildren(parent, doomed);
    QCOMPARE(current.size(), 1);
    QCOMPARE(tree.currentItem(), parent->child(19));
    QApplication::processEvents();
    QCOMPARE(tree.verticalScrollBar()->value(), 5);
    QList<QTreeWidgetItem *> rest;
    for (int i = 0; i < parent->childCount(); ++i)
        rest += parent->child(i);
    SteadyTreeWidget::removeChildren(parent, rest);
    QCOMPARE(parent->childCount(), 0);
    QCOMPARE(tree.currentItem(), parent);
}

void TestSteadyTreeWidget::items_outsideOfATree()
{
    QTreeWidgetItem item;
    auto *child = new QTreeWidgetItem(&item);
    SteadyTreeWidget::setItemText(&item, 1, "text");
    SteadyTreeWidget::setItemHidden(&item, false);
    SteadyTreeWidget::setItemExpanded(&item, false);
    QCOMPARE(item.text(1), "text");
    SteadyTreeWidget::removeChildren(&item, {child});
    QCOMPARE(item.childCount(), 0);
}

void TestSteadyTreeWidget::endlessText_isShownShortened_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");

    const QString most(1000, 'x');
    const QString face = QString::fromUtf8("\U0001F600");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("most characters") << most << most;
    QTest::newRow("one more") << most + 'y' << most + QChar(0x2026);
    QTest::newRow("character of two units")
        << most.chopped(1) + face << most.chopped(1) + QChar(0x2026);
    QTest::newRow("most lines") << "a\nb\nc\nd"
                                << "a\nb\nc\nd";
    for (const int lineBreak : {0x0A, 0x0B, 0x0C, 0x0D, 0x85, 0x2028, 0x2029})
        QTest::addRow("one line more, U+%04X", lineBreak)
            << QString("a.b.c.d.e").replace('.', QChar(lineBreak))
            << QString("a.b.c.d").replace('.', QChar(lineBreak)) + QChar(0x2026);
}

void TestSteadyTreeWidget::endlessText_isShownShortened()
{
    QFETCH(QString, text);
    QTEST(SteadyTreeWidget::shortened(text), "shown");
    SteadyTreeWidget tree;
    auto *item = new QTreeWidgetItem(&tree);
    SteadyTreeWidget::setItemText(item, 0, text);
    QCOMPARE(item->text(0), text);
    const auto *delegate = qobject_cast<const QStyledItemDelegate *>(tree.itemDelegate());
    const QString plain = SteadyTreeWidget::shortened(text).replace('\n', QChar::LineSeparator);
    QCOMPARE(delegate->displayText(text, QLocale()), plain);
}

CORVANE_GUI_TEST_MAIN(TestSteadyTreeWidget)
#include "tst_steadytreewidget.moc"
