#pragma once

#include "corvanegui_export.h"

#include <QLabel>

class FieldInfo;
class Message;
class MessageNeed;
class MessageSource;
class QTimer;

/**
 * A label that shows the current value of one field.
 *
 * The label picks the value out of every message that carries the field and shows it as text;
 * "N/A" stands where there is no value. Of a repeated field it shows the first element, followed
 * by " [...]" when there are more, or the element chosen with setIndex(). A string field is shown
 * as a whole. With a time-out, a value is withdrawn when no newer one has come in time.
 *
 * While a field is set the label declares that it needs all message types in which the field
 * occurs, so that they are decoded.
 *
 * @code
 * auto *label = new FieldValueLabel(field, source);
 * label->setTimeOut(2000);
 * layout->addWidget(label);
 * @endcode
 */
class CORVANEGUI_EXPORT FieldValueLabel : public QLabel
{
    Q_OBJECT

public:
    /**
     * \a source: where the messages come from; with null the owner calls processMessage() itself.
     * \a timeOut: milliseconds as for setTimeOut(), but here 0 means no time-out as well.
     *
     * The label has no parent until its owner places it.
     */
    explicit FieldValueLabel(const FieldInfo *fieldInfo = nullptr,
                             MessageSource *source = nullptr,
                             bool showInterpretedString = true,
                             int timeOut = -1);
    /** A timer that a time-out has made outlives the label, disconnected. */
    ~FieldValueLabel() override;

    // What these change is seen with the next message; the shown text stays as it is.

    /** Chooses the field to show; null shows nothing of any message and needs none. */
    void setFieldInfo(const FieldInfo *fieldInfo);
    const FieldInfo *getFieldInfo() const;
    /** Chooses one element, counted from 0; "N/A" is shown for messages with fewer of them. */
    void setIndex(unsigned int index);
    void clearIndex();
    bool hasIndex() const;
    /** The chosen element, 0 without one. */
    unsigned int getIndex() const;
    /** Whether symbolic names are shown where values have them, or the plain values. */
    void setShowInterpretedString(bool showInterpretedString);
    bool getShowInterpretedString() const;

    /**
     * Withdraws a value when no newer one has come for \a milliseconds, counted from now and again
     * from each value. 0 withdraws it with the next round of events, a negative number never.
     */
    void setTimeOut(int milliseconds);

public Q_SLOTS:
    /** Shows "N/A"; a running time-out runs on. */
    void clearValue();
    /**
     * Shows the value that \a message has. Messages of types without the field change nothing. Not
     * to be called with null while a field is set.
     */
    void processMessage(const Message *message);
    void onTimeout();

private:
    QString getText(const Message *message, unsigned int count) const;

    const FieldInfo *fieldInfo = nullptr; ///< Not owned.
    bool indexSet = false;
    unsigned int index = 0; ///< 0 whenever no index is set.
    bool showInterpretedString = true;
    MessageNeed *messageNeed = nullptr; ///< Owned.
    QTimer *timer = nullptr; ///< Null until a time-out is set; has no parent.
};
