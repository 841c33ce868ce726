#pragma once

#include "corvanegui_export.h"

#include <QObject>
#include <QString>

class Message;
class MessageInfo;

/**
 * A search text for the elements of repeated sub-messages in a message tree.
 *
 * The owner hands the filter to message rows (MessageTreeWidgetItem::setFilter()) and keeps it
 * alive as long as they use it. A row shows the elements in which a value has exactly this text.
 */
class CORVANEGUI_EXPORT MessageTreeFilter : public QObject
{
    Q_OBJECT

public:
    explicit MessageTreeFilter(QObject *parent = nullptr);
    ~MessageTreeFilter() override;

    QString getSearchString() const;
    /**
     * Whether the interpreted text of one of the message's values is the search text, case and all.
     * With an empty search text every message is in; with any other text null is not.
     */
    bool isInFilter(const Message *message);
    /**
     * Whether the search text is a symbolic name of values of one of the type's fields; never with
     * an empty one. \a messageInfo is not null.
     */
    bool isLoadedFor(const MessageInfo *messageInfo);

Q_SIGNALS:
    /** The search text is another one now. */
    void changed();

public Q_SLOTS:
    void setSearchString(QString searchString);

private:
    QString searchString;
};
