#pragma once

#include "messagetreewidget.h"

namespace corvane {

/** While it lives, rows can be expanded and collapsed without anything being remembered of it. */
class ForgetfulExpansion
{
public:
    ForgetfulExpansion() = default;
    ~ForgetfulExpansion();
    ForgetfulExpansion(const ForgetfulExpansion &) = delete;
    ForgetfulExpansion &operator=(const ForgetfulExpansion &) = delete;

private:
    QHash<const MessageInfo *, bool> messages = MessageTreeWidget::sMessageInfoExpandedCollapsedMap;
    QHash<const FieldInfo *, bool> fields = MessageTreeWidget::sFieldInfoExpandedCollapsedMap;
};

/** Remembers that what \a row stands for and all inside it is expanded, or is not. */
void rememberExpansionBelow(const QTreeWidgetItem *row, bool expanded);

} // namespace corvane
