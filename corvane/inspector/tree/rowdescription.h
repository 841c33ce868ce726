#pragma once

#include <QStringList>

class QTreeWidgetItem;

namespace corvane {

/**
 * What is to be said of a row of a message tree beside its texts, a sentence each: its path, type
 * and unit, in words what is absent, hidden, filtered out or cut, and what it is for.
 */
QStringList describeRow(QTreeWidgetItem *row);

} // namespace corvane
