#include "recordcontroller.h"

#include "icons.h"
#include "noticearea.h"
#include "session.h"

#include <QAction>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QWidget>

namespace corvane {

namespace {

constexpr int progressIntervalMs = 250;

QString noticeName()
{
    return QStringLiteral("recordNotice");
}

QString sizeText(quint64 bytes)
{
    return QLocale().formattedDataSize(static_cast<qint64>(bytes));
}

} // namespace

RecordController::RecordController(Session &session, NoticeArea &notices, QWidget *window)
    : QObject(window)
    , session(session)
    , notices(notices)
    , window(window)
    , action(new QAction(this))
{
    action->setShortcut(tr("Ctrl+R"));
    connect(action, &QAction::triggered, this, &RecordController::toggle);
    connect(&session.getRecorder(), &Recorder::failed, this, &RecordController::fail);
    connect(&progressTimer, &QTimer::timeout, this, &RecordController::showProgress);
    showState();
}

void RecordController::toggle()
{
    if (session.getRecorder().isRecording())
        stop();
    else if (!session.getOptions().source)
        notices.say(noticeName(), tr("There is nothing to record: no source is open."));
    else
        askForPath();
}

void RecordController::askForPath()
{
    auto *dialog = new QFileDialog(window, tr("Record to a File"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(QDir::home().filePath(getProposedName()));
    connect(dialog, &QFileDialog::fileSelected, this, &RecordController::start);
    dialog->open();
}

QString RecordController::getProposedName() const
{
    const auto &source = *session.getOptions().source;
    const QString suffix = source.kind == SourceAddress::Kind::File
                               ? QFileInfo(source.text).suffix()
                               : QStringLiteral("raw");
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    return QStringLiteral("recording-%1.%2").arg(time, suffix);
}

void RecordController::start(const QString &path)
{
    const QString problem = session.startRecording(path);
    if (!problem.isEmpty())
        return fail(problem);
    progressTimer.start(progressIntervalMs);
    showState();
    showProgress();
}

void RecordController::stop()
{
    Recorder &recorder = session.getRecorder();
    const bool isComplete = recorder.stop();
    if (!isComplete)
        return fail(recorder.getErrorMessage());
    progressTimer.stop();
    showState();
    notices.say(
        noticeName(),
        tr("Recorded %1 to \"%2\".").arg(sizeText(recorder.getBytesWritten()), recorder.getPath()));
}

void RecordController::fail(const QString &message)
{
    progressTimer.stop();
    showState();
    notices.say(noticeName(), message);
}

void RecordController::showState()
{
    const bool records = session.getRecorder().isRecording();
    action->setText(records ? tr("Stop &Recording") : tr("&Record…"));
    action->setIcon(
        makeIcon(records ? QStringLiteral("media-playback-stop") : QStringLiteral("media-record")));
    action->setToolTip(records ? tr("End the recording and close its file")
                               : tr("Write the bytes of the source to a file as they come"));
}

void RecordController::showProgress()
{
    const Recorder &recorder = session.getRecorder();
    notices.say(
        noticeName(),
        tr("Recording to \"%1\": %2").arg(recorder.getPath(), sizeText(recorder.getBytesWritten())),
        {{tr("&Stop"), [this] { stop(); }}}, QString());
}

} // namespace corvane
