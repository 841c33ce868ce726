#pragma once

#include <QObject>

namespace corvane {

/**
 * While it lives, all tool tips of the program are shown as plain text. What they tell comes from
 * definition files and settings and may look like markup, which Qt would otherwise follow.
 */
class PlainToolTips : public QObject
{
    Q_OBJECT

public:
    PlainToolTips();

    bool eventFilter(QObject *object, QEvent *event) override;
};

} // namespace corvane
