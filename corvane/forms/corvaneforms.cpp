#include "corvaneforms.h"

namespace corvane::forms {

FieldValueLabel::FieldValueLabel(QWidget *parent)
{
    setParent(parent);
}

PathExpressionLabel::PathExpressionLabel(QWidget *parent)
    : ::PathExpressionLabel(nullptr, PathExpression::AllParts, parent)
{
}

PathExpressionLineEdit::PathExpressionLineEdit(QWidget *parent)
    : ::PathExpressionLineEdit(nullptr, PathExpression::AllParts, parent)
{
}

PathExpressionComboBox::PathExpressionComboBox(QWidget *parent)
    : ::PathExpressionComboBox(nullptr, PathExpression::AllParts, nullptr, parent)
{
}

PathExpressionListWidget::PathExpressionListWidget(QWidget *parent)
    : ::PathExpressionListWidget(nullptr, PathExpression::AllParts, nullptr, parent)
{
}

EventLogTableWidget::EventLogTableWidget(QWidget *parent)
    : ::EventLogTableWidget(nullptr, parent)
{
}

MessageStatisticsWidget::MessageStatisticsWidget(QWidget *parent)
    : ::MessageStatisticsWidget(nullptr, parent)
{
}

} // namespace corvane::forms
