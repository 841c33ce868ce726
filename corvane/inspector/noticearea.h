#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class QHBoxLayout;
class QLabel;

namespace corvane {

/**
 * What a window has to say to people: lines above its views, each with its buttons. It takes no
 * room while there is nothing to say, and nobody has to answer before going on.
 */
class NoticeArea : public QWidget
{
    Q_OBJECT

public:
    struct Button
    {
        QString text;
        std::function<void()> action; ///< Runs when the line is gone.
    };

    explicit NoticeArea(QWidget *parent = nullptr);

    /**
     * Says \a text, in place of what was said under \a name before. The last button, which is
     * left out if \a closeText is empty, closes the line and does nothing else.
     */
    void say(const QString &name,
             const QString &text,
             const QList<Button> &buttons = {},
             const QString &closeText = tr("Close"));
    /** Takes back what was said under \a name, if anything was. */
    void withdraw(const QString &name);
    /** What is said under \a name; empty if nothing is. */
    QString getText(const QString &name) const;

    bool isEmpty() const { return notices.empty(); }

Q_SIGNALS:
    /** There is something to say now, or nothing any more. */
    void filled(bool hasNotices);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Notice
    {
        QString name;
        QWidget *line = nullptr; ///< Owned as a child.
        QLabel *label = nullptr; ///< Owned by the line.
        QStringList buttonTexts;
    };

    Notice *find(const QString &name);
    void refresh();
    void fitHeight();
    QLabel *createLabel(const QString &text, QWidget *line);
    void addButton(QHBoxLayout &layout, const QString &name, const Button &button);

    std::vector<Notice> notices;
};

} // namespace corvane
