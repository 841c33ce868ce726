#pragma once

#include <QLabel>

namespace corvane {

/** A line of plain text that never makes its window wider: what does not fit is in the tool tip. */
class ElidingLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidingLabel(QWidget *parent = nullptr);

    void say(const QString &text);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace corvane
