#pragma once

#include <QObject>

class QAction;

namespace corvane {

class NoticeArea;

/**
 * Whether people see the content of confidential fields: not in a new window, and not before they
 * have confirmed it there once.
 */
class ConfidentialSwitch : public QObject
{
    Q_OBJECT

public:
    /** \a notices: where people are asked; not owned, must outlive the switch. */
    explicit ConfidentialSwitch(NoticeArea &notices, QObject *parent = nullptr);
    /** Hides the content again. */
    ~ConfidentialSwitch() override;

    /** Owned by the switch. */
    QAction *getAction() const { return action; }

private:
    void take(bool shown);
    void ask();
    void confirm();

    NoticeArea &notices;
    QAction *action; ///< Owned as a child.
    bool isConfirmed = false;
};

} // namespace corvane
