#pragma once

#include <QList>
#include <QWidget>

class Message;
class MessageInfo;
class MessageWidget;
class QLabel;

namespace corvane {

class LatestMessages;

/** A form of one message type under its name and description, live. */
class FormPanel : public QWidget
{
    Q_OBJECT

public:
    /** \a latest is not owned and must outlive the panel. */
    explicit FormPanel(const LatestMessages &latest, QWidget *parent = nullptr);

    /** Shows \a type with its last message; null leaves the form empty. */
    void showType(const MessageInfo *type);
    /** Says \a text instead of a form, under \a title. */
    void showText(const QString &title, const QString &text);

protected:
    void changeEvent(QEvent *event) override;

private:
    void fitHeading();
    void showLatest();
    void showMessage(const Message *message);
    void setContent(const QString &title, const QString &text, const MessageInfo *type);

    const LatestMessages &latest;
    QLabel *heading; ///< Owned as a child.
    QLabel *description; ///< Owned as a child.
    MessageWidget *form; ///< Owned as a child.
    QList<QLabel *> labels; ///< Owned by the form.
    const MessageInfo *type = nullptr; ///< Not owned.
};

} // namespace corvane
