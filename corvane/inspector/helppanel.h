#pragma once

#include <QWidget>

class QTextBrowser;

namespace corvane {

/** A short page on what the window is for, with all keys that do something in it. */
class HelpPanel : public QWidget
{
    Q_OBJECT

public:
    explicit HelpPanel(QWidget *parent = nullptr);

    /** Lists the shortcuts of the actions of \a window, as they are at present. */
    void describe(const QWidget &window);
    QString getText() const;

private:
    QTextBrowser *page; ///< Owned as a child.
};

/** The versions of the program and of what it is made of, one in each line. */
QString getVersionsText();

} // namespace corvane
