#pragma once

#include "rowplace.h"

#include <QWidget>

class MessageSource;
class QLabel;

namespace corvane {

class HexView;

/**
 * The bytes of the newest message of the chosen type, with those of the chosen field marked. Holds
 * a reference on that message.
 */
class BytesPanel : public QWidget
{
    Q_OBJECT

public:
    /** Follows \a messages, which is not owned. */
    explicit BytesPanel(MessageSource &messages, QWidget *parent = nullptr);
    ~BytesPanel() override;

    /** Forgets the message and waits for the next one of the same type. */
    void clear();
    /** Shows \a message, which is of the place's type or null, and marks the place in it. */
    void setPlace(const std::optional<RowPlace> &place, const Message *message);
    /** The same for a whole message; nothing changes if a place in one of that type is shown. */
    void setType(const MessageInfo *type, const Message *message);

Q_SIGNALS:
    /** People want to see the field that a byte belongs to. */
    void placeActivated(const RowPlace &place);

protected:
    /** While it cannot be seen, the panel only remembers what to show. */
    void showEvent(QShowEvent *event) override;

private:
    void processMessage(const Message *message);
    void setMessage(const Message *newMessage);
    void refresh();
    void refreshSelection();
    void activate(int byte);
    QString getHeading() const;
    QString getPlaceText() const;

    std::optional<RowPlace> place;
    const Message *message = nullptr; ///< With a reference.
    QLabel *heading; ///< Owned as a child.
    HexView *view; ///< Owned as a child.
    QLabel *selection; ///< Owned as a child.
    bool isMasked = false; ///< Some of the bytes.
};

} // namespace corvane
