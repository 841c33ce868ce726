#pragma once

#include "expansion.h"
#include "messagetreewidget.h"
#include "messagetreewidgetitem.h"
#include "testformat.h"

#include <QApplication>
#include <QMessageBox>
#include <QStringList>
#include <QTimer>

namespace corvane::test {

inline const char types[] = R"(
    Position
      best  Satellite
      list  int32[]
    Satellite part
      signals uint8[]
    Attitude
      roll float[]
)";

using Columns = QList<MessageTreeWidget::ColumnType>;
inline const Columns defaultColumns{MessageTreeWidget::Name, MessageTreeWidget::Type,
                                    MessageTreeWidget::Value};

inline MessageTreeWidgetItem *
addRow(MessageTreeWidget &tree, const TestFormat &format, const QString &type)
{
    auto *row = new MessageTreeWidgetItem(&tree, format.type(type));
    tree.addTopLevelItem(row);
    row->configureInTreeWidget();
    return row;
}

/** Answers message boxes while it lives and keeps what they said. */
class BoxReader : public QObject
{
public:
    BoxReader()
    {
        connect(&timer, &QTimer::timeout, this, [this] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                boxes += box->windowTitle() + ": " + box->text();
                standardButtons = box->standardButtons();
                icon = box->icon();
                box->accept();
            }
        });
        timer.start(1);
    }

    QStringList boxes;
    QMessageBox::StandardButtons standardButtons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;

private:
    QTimer timer;
};

} // namespace corvane::test
