#pragma once

#include "corvane.h"
#include "expansion.h"
#include "messagetreewidget.h"
#include "messagetreewidgetitem.h"
#include "testcase.h"
#include "testformat.h"
#include "treeprinter.h"

namespace corvane::test {

inline constexpr char rowTypes[] = R"(
    Position 'Where it is'
      mode     uint8 {Manual=0, Auto=2}
      height   double optional
      name     char[]
      samples  int16[] optional
      best     Satellite optional
      sats     Satellite[]
    Satellite part 'One in sight'
      id       uint8
      state    uint8 {Lost=0, Good=1}
      signals  uint8[]
    Attitude
      roll     float
)";

/** A tree with one row for each named type. */
class Shown
{
public:
    Shown(const TestFormat &format, const QStringList &names)
        : format(format)
    {
        for (const QString &name : names) {
            auto *row = new MessageTreeWidgetItem(&tree, format.type(name));
            tree.addTopLevelItem(row);
            row->configureInTreeWidget();
            tree.expandAll();
        }
    }

    MessageTreeWidgetItem *row(int index = 0)
    {
        return dynamic_cast<MessageTreeWidgetItem *>(tree.topLevelItem(index));
    }

    QString after(const QString &messages)
    {
        for (const MessageHolder &message : format.messages(messages))
            tree.processMessage(message);
        tree.expandAll();
        return printed(tree);
    }

    const TestFormat &format;
    MessageTreeWidget tree;
};

inline QString withoutRow(const char *type)
{
    return QStringLiteral("No message type set | ") + QLatin1String(type)
           + QStringLiteral(" | No message");
}

/** What rows show, one expectation for each screen. */
class TreeRowCase : public TestCase
{
    Q_OBJECT

private Q_SLOTS:

    void cleanup()
    {
        forgetExpansion();
        Corvane::setConfidentialInformationDisplayEnabled(false);
        TestCase::cleanup();
    }
};

} // namespace corvane::test
