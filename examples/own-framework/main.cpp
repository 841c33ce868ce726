// Corvane's widgets on a framework that is not Corvane's.

#include "counterformat.h"

#include <QApplication>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

#include <fieldvaluelabel.h>
#include <messagetreewidget.h>
#include <messagetreewidgetitem.h>
#include <pathexpressioncombobox.h>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    CounterFormat counter;

    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *label = new FieldValueLabel(counter.getField(), counter.getSource());
    layout->addWidget(label);
    PathExpression expression;
    auto *chooser = new PathExpressionComboBox(&expression, PathExpression::AllParts, nullptr);
    layout->addWidget(chooser);
    auto *tree = new MessageTreeWidget;
    auto *row = new MessageTreeWidgetItem(tree, counter.getType());
    tree->addTopLevelItem(row);
    row->configureInTreeWidget();
    QObject::connect(counter.getSource(), SIGNAL(newMessage(const Message *)), tree,
                     SLOT(processMessage(const Message *)));
    layout->addWidget(tree);
    window.show();

    quint64 number = 41;
    counter.send(++number);
    if (application.arguments().contains(QStringLiteral("--check"))) {
        const int value = tree->getColumnIndex(MessageTreeWidget::Value);
        QTextStream(stdout) << "label: " << label->text()
                            << "\ntree: " << row->child(0)->text(value)
                            << "\nchoices: " << chooser->itemText(1) << '\n';
        return 0;
    }
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &window, [&] { counter.send(++number); });
    timer.start(500);
    return QApplication::exec();
}
