#include "confidentialswitch.h"

#include "corvane.h"
#include "icons.h"
#include "noticearea.h"

#include <QAction>

namespace corvane {

namespace {

QString noticeName()
{
    return QStringLiteral("confidentialNotice");
}

} // namespace

ConfidentialSwitch::ConfidentialSwitch(NoticeArea &notices, QObject *parent)
    : QObject(parent)
    , notices(notices)
    , action(new QAction(tr("Show &Confidential Fields"), this))
{
    action->setIcon(makeIcon(QStringLiteral("view-confidential")));
    action->setCheckable(true);
    action->setToolTip(tr("Show the content of fields that are marked as confidential"));
    connect(action, &QAction::toggled, this, &ConfidentialSwitch::take);
    Corvane::setConfidentialInformationDisplayEnabled(false);
}

ConfidentialSwitch::~ConfidentialSwitch()
{
    Corvane::setConfidentialInformationDisplayEnabled(false);
}

void ConfidentialSwitch::take(bool shown)
{
    notices.withdraw(noticeName());
    Corvane::setConfidentialInformationDisplayEnabled(shown && isConfirmed);
    if (shown && !isConfirmed)
        ask();
}

void ConfidentialSwitch::ask()
{
    action->setChecked(false);
    notices.say(noticeName(),
                tr("Confidential fields become readable in all views, and in what is exported or "
                   "copied from now on, until this window is closed."),
                {{tr("&Show Them"), [this] { confirm(); }}}, tr("Keep Them Hidden"));
}

void ConfidentialSwitch::confirm()
{
    isConfirmed = true;
    action->setChecked(true);
}

} // namespace corvane
