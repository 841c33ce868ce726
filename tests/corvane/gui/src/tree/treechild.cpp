// Makes one of the mistakes that end a process, or plays one of two runs of a program, as asked.

#include "DbgTrace.h"
#include "messagetreewidget.h"
#include "messagetreewidgetitem.h"
#include "singlesubmessagefieldtreewidgetitem.h"
#include "stringfieldtreewidgetitem.h"
#include "testformat.h"
#include "treeprinter.h"

#include <QApplication>
#include <QSettings>

#include <sys/resource.h>

#include <cstdio>
#include <memory>

namespace {

const char types[] = R"(
    Position
      x      int32
      names  char[]
      best   Satellite
    Satellite part
      id     uint8
      signals uint8[]
    Attitude
      roll   float[]
)";

void useHost()
{
    static DbgCallbackFunctions host = {};
    host.output = [](const char *line, int) { std::fputs(line, stdout); };
    host.getenv = [](const char *name) -> const char * {
        return qstrcmp(name, "TAV_TRACEINFO") == 0 ? "all" : nullptr;
    };
    dbg_Terminate();
    dbg_SetCallbackFunctions(&host);
    dbg_Init(nullptr, 0, 0, 300);
}

void addRows(MessageTreeWidget &tree, const corvane::test::TestFormat &format)
{
    for (const char *name : {"Position", "Attitude"}) {
        auto *row = new MessageTreeWidgetItem(&tree, format.type(QLatin1String(name)));
        tree.addTopLevelItem(row);
        row->configureInTreeWidget();
    }
}

void runFirst(QSettings &settings)
{
    const corvane::test::TestFormat format("Demo", types);
    MessageTreeWidget tree;
    addRows(tree, format);
    tree.setColumns(
        {MessageTreeWidget::Value, MessageTreeWidget::Name, MessageTreeWidget::RawValue});
    tree.setColumnWidth(1, 123);
    QTreeWidgetItem *position = tree.topLevelItem(0);
    position->child(2)->setExpanded(false);
    position->child(2)->child(1)->setExpanded(true);
    tree.topLevelItem(1)->setExpanded(false);
    tree.saveSettings(settings);
    tree.saveExpansionState(settings);
}

void runSecond(QSettings &settings)
{
    const corvane::test::TestFormat format("Demo", types);
    MessageTreeWidget tree;
    tree.restoreSettings(settings);
    tree.loadExpansionState(settings);
    addRows(tree, format);
    for (const MessageTreeWidget::ColumnType column : tree.getColumns())
        std::printf("column %d\n", column);
    std::printf("width %d\n", tree.columnWidth(1));
    for (QTreeWidgetItem *item : {tree.topLevelItem(0), tree.topLevelItem(0)->child(2),
                                  tree.topLevelItem(0)->child(2)->child(1), tree.topLevelItem(1)})
        std::printf("expanded %d\n", item->isExpanded());
}

void makeMistake(const QString &name)
{
    const corvane::test::TestFormat format("Demo", types);
    MessageTreeWidget tree;
    if (name == "addnegative")
        tree.addColumn(static_cast<MessageTreeWidget::ColumnType>(-1), false);
    if (name == "addbeyond")
        tree.addColumn(static_cast<MessageTreeWidget::ColumnType>(1000), false);
    if (name == "addlast")
        tree.addColumn(static_cast<MessageTreeWidget::ColumnType>(999), false);
    if (name == "hasnegative")
        tree.hasColumn(static_cast<MessageTreeWidget::ColumnType>(-1));
    if (name == "indexnegative")
        tree.getColumnIndex(static_cast<MessageTreeWidget::ColumnType>(-2));
    if (name == "nostring")
        StringFieldTreeWidgetItem(&tree).setFieldInfo(format.field("Attitude.roll"));
    if (name == "nosubmessage")
        SingleSubMessageFieldTreeWidgetItem(&tree, 0).setFieldInfo(format.field("Position.x"));
    std::puts("survived");
}

} // namespace

int main(int argc, char *argv[])
{
    const rlimit noCoreFile = {0, 0};
    setrlimit(RLIMIT_CORE, &noCoreFile);
    setvbuf(stdout, nullptr, _IONBF, 0);
    const QApplication application(argc, argv);
    useHost();
    const QString command = QString::fromLocal8Bit(argv[1]);
    QSettings settings(QString::fromLocal8Bit(argc > 2 ? argv[2] : ""), QSettings::IniFormat);
    if (command == "first")
        runFirst(settings);
    else if (command == "second")
        runSecond(settings);
    else
        makeMistake(command);
    return 0;
}
