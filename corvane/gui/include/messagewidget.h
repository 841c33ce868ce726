#pragma once

#include "corvanegui_export.h"

#include <QList>
#include <QWidget>

class FieldValueLabel;
class Message;
class MessageInfo;
class QGridLayout;

/**
 * A form that shows every field of one message type, one row each: the field's name and its value.
 *
 * The owner feeds the form. Connected to processMessage() it stays with its type; through
 * displayMessage() it follows the type of each message and rebuilds itself for it. The window
 * title is the name of the type.
 *
 * @code
 * auto *form = new MessageWidget(parent, messageInfo);
 * connect(source, &MessageSource::newMessage, form, &MessageWidget::processMessage);
 * @endcode
 */
class CORVANEGUI_EXPORT MessageWidget : public QWidget
{
    Q_OBJECT

public:
    explicit MessageWidget(QWidget *parent = nullptr, const MessageInfo *messageInfo = nullptr);
    ~MessageWidget() override;

    /** The type shown; null while there is none. */
    const MessageInfo *getMessageInfo() const;

public Q_SLOTS:
    /** Rebuilds all rows, also for the type that is shown already; null empties the form. */
    void setMessageInfo(const MessageInfo *MessageInfo);
    /** Shows \a message, whatever its type; null empties the form. */
    void displayMessage(const Message *message);
    void clearValues();
    /** Shows \a message if it is of the type shown. Not to be called with null. */
    void processMessage(const Message *message);

private:
    void removeRows();
    void createRows();

    const MessageInfo *messageInfo = nullptr; ///< Not owned.
    QList<FieldValueLabel *> labels; ///< In the order of the rows. Not owned: children.
    QGridLayout *gridLayout = nullptr; ///< Owned; null while there is no type.
};
