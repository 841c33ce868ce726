#pragma once

#include "abstractmessagetreewidgetitem.h"
#include "messageneed.h"

#include <QObject>

class AbstractFieldTreeWidgetItem;

/**
 * The row of one message type, with a row below it for each of the type's fields.
 *
 * The row shows the last message of its type and holds a reference on it. It declares that the type
 * is needed, so that it is decoded. Fields that may not be shown have no rows; where that is for
 * their confidentiality, a first row below says so.
 *
 * Whoever makes a row adds it to the tree and then calls configureInTreeWidget().
 */
class CORVANEGUI_EXPORT MessageTreeWidgetItem : public QObject,
                                                public virtual AbstractMessageTreeWidgetItem
{
    Q_OBJECT

public:
    /** \a messageInfo: the type to show; null for none yet. */
    MessageTreeWidgetItem(MessageTreeWidget *messageTreeWidget, const MessageInfo *messageInfo);
    ~MessageTreeWidgetItem() override;

    const MessageInfo *getMessageInfo() const;
    const Message *getDisplayedMessage() const;
    bool isMessageDisplayed() const;

    QString getNameText() override;
    QString getNameToolTip() override;
    QString getTypeText() override;
    QString getValueText() override;

public Q_SLOTS:
    /** Replaces all rows below by those of another type; null for none. */
    void setMessageInfo(const MessageInfo *messageInfo);
    /** Shows \a message, whatever its type; null leaves the row without type. */
    void displayMessage(const Message *message);
    void clearValues() override;
    /** Shows \a message if it is of the row's type. Not to be called with null. */
    void processMessage(const Message *message) override;

public:
    void configureInTreeWidget() override;
    void setFilter(MessageTreeFilter *filter) override;
    /** Puts a row that says so above the fields. */
    void showConfidentialityMessage();
    void hideConfidentialityMessage();
    void setChildItemsHidden(bool hidden);
    void setDisplayedMessage(const Message *message);

private:
    void deleteAllChildItems();
    void createChildItems();
    AbstractFieldTreeWidgetItem *createFieldItem(const FieldInfo *field);
    void rebuild();

    const MessageInfo *messageInfo = nullptr; ///< Not owned.
    MessageNeed messageNeed{nullptr};
    QHash<const FieldInfo *, AbstractFieldTreeWidgetItem *> fieldItemsByFieldInfo; ///< Children.
    const Message *displayedMessage = nullptr; ///< With a reference if it is of a main type.
    QTreeWidgetItem *confidentialityItem = nullptr; ///< Owned as a child.
};
