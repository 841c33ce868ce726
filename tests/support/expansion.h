#pragma once

#include "messagetreewidget.h"

namespace corvane::test {

/** What trees of messages remember for as long as the process lives. */
inline void forgetExpansion()
{
    MessageTreeWidget::sMessageInfoExpandedCollapsedMap.clear();
    MessageTreeWidget::sFieldInfoExpandedCollapsedMap.clear();
}

} // namespace corvane::test
