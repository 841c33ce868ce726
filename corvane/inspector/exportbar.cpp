#include "exportbar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace corvane {

ExportBar::ExportBar(QWidget *parent)
    : QFrame(parent)
    , label(new QLabel(this))
    , progress(new QProgressBar(this))
    , button(new QPushButton(this))
{
    setObjectName(QStringLiteral("exportBar"));
    setFrameShape(QFrame::StyledPanel);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    progress->setAccessibleName(tr("Progress of the export"));
    progress->setMaximumWidth(fontMetrics().averageCharWidth() * 30);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(label, 1);
    layout->addWidget(progress);
    layout->addWidget(button);
    connect(button, &QPushButton::clicked, this, &ExportBar::handleButton);
    hide();
}

void ExportBar::showProgress(const QString &text,
                             std::optional<double> fraction,
                             const QString &buttonText)
{
    goesOn = true;
    label->setText(text);
    progress->setVisible(fraction.has_value());
    progress->setValue(qRound(fraction.value_or(0) * 100));
    button->setText(buttonText);
    show();
}

void ExportBar::showResult(const QString &text)
{
    goesOn = false;
    label->setText(text);
    progress->hide();
    button->setText(tr("Close"));
    show();
}

void ExportBar::handleButton()
{
    if (goesOn)
        Q_EMIT stopRequested();
    else
        hide();
}

} // namespace corvane
