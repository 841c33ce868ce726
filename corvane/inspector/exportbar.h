#pragma once

#include <QFrame>

#include <optional>

class QLabel;
class QProgressBar;
class QPushButton;

namespace corvane {

/** A line of text above the views that tells what an export does, with a button; else hidden. */
class ExportBar : public QFrame
{
    Q_OBJECT

public:
    explicit ExportBar(QWidget *parent = nullptr);

    /**
     * Something goes on, which the button \a buttonText ends. \a fraction: how much is done, 0 to
     * 1; nothing where that is not known.
     */
    void
    showProgress(const QString &text, std::optional<double> fraction, const QString &buttonText);
    /** Something is done; the button closes the bar. */
    void showResult(const QString &text);

Q_SIGNALS:
    /** The button was pressed while something goes on. */
    void stopRequested();

private:
    void handleButton();

    QLabel *label; ///< Owned as a child.
    QProgressBar *progress; ///< Owned as a child.
    QPushButton *button; ///< Owned as a child.
    bool goesOn = false;
};

} // namespace corvane
