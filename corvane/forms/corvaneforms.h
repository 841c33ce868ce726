#pragma once

#include "eventlogtablewidget.h"
#include "fieldvaluelabel.h"
#include "messagestatisticswidget.h"
#include "pathexpressioncombobox.h"
#include "pathexpressionlabel.h"
#include "pathexpressionlineedit.h"
#include "pathexpressionlistwidget.h"

/**
 * The widgets as Qt Designer's forms make them: from a parent alone. They are what their bases are
 * without a framework object, which the program sets when the form is there:
 *
 * @code
 * ui.setupUi(this);
 * ui.speed->setFieldInfo(field);
 * connect(source, SIGNAL(newMessage(const Message*)), ui.speed, SLOT(processMessage(const
 * Message*)));
 * @endcode
 *
 * Widgets that are not here (MessageWidget, MessageTreeWidget) need nothing but a parent anyway.
 */
namespace corvane::forms {

class FieldValueLabel : public ::FieldValueLabel
{
    Q_OBJECT

public:
    explicit FieldValueLabel(QWidget *parent = nullptr);
};

/** Shows and edits all parts, until setParts() says otherwise; the same below. */
class PathExpressionLabel : public ::PathExpressionLabel
{
    Q_OBJECT

public:
    explicit PathExpressionLabel(QWidget *parent = nullptr);
};

class PathExpressionLineEdit : public ::PathExpressionLineEdit
{
    Q_OBJECT

public:
    explicit PathExpressionLineEdit(QWidget *parent = nullptr);
};

class PathExpressionComboBox : public ::PathExpressionComboBox
{
    Q_OBJECT

public:
    explicit PathExpressionComboBox(QWidget *parent = nullptr);
};

class PathExpressionListWidget : public ::PathExpressionListWidget
{
    Q_OBJECT

public:
    explicit PathExpressionListWidget(QWidget *parent = nullptr);
};

class EventLogTableWidget : public ::EventLogTableWidget
{
    Q_OBJECT

public:
    explicit EventLogTableWidget(QWidget *parent = nullptr);
};

/**
 * Keeps the place of a statistics view of the library, which has to be made with its coordinator:
 *
 * @code
 * delete ui.layout->replaceWidget(ui.statistics, new ::MessageStatisticsWidget(coordinator));
 * delete ui.statistics;
 * @endcode
 */
class MessageStatisticsWidget : public ::MessageStatisticsWidget
{
    Q_OBJECT

public:
    explicit MessageStatisticsWidget(QWidget *parent = nullptr);
};

} // namespace corvane::forms
