#pragma once

#include "bytesource.h"
#include "descriptorreader.h"

#include <QByteArray>

class QProcess;

namespace corvane {

/**
 * Runs a command by the shell and reads its standard output.
 *
 * The end comes when the output is closed and the command has ended; an exit code other than 0 is a
 * failure, told with the last lines of standard error. close() before the end ends the command and
 * all that it has started, politely first and then by force, which takes up to about a quarter of a
 * second. The command's standard input is empty. It is ended, too, when the thread that has called
 * open() ends.
 */
class CORVANEFRAMEWORK_EXPORT ProcessSource : public ByteSource
{
    Q_OBJECT

public:
    explicit ProcessSource(QString command, QObject *parent = nullptr);
    ~ProcessSource() override;

    /** Of the shell, and of the process group of all that it starts; 0 while nothing runs. */
    qint64 getProcessId() const { return processId; }

    QString getName() const override;
    std::optional<qint64> getWaitingBytes() const override;

protected:
    void openDevice() override;
    void closeDevice() override;
    qint64 readDevice(char *data, qint64 maximum) override;

private:
    void startProcess(int outputDescriptor);
    void endProcessGroup();
    void handleStartError();
    void keepErrorOutput();
    QString describeEnd() const;

    QString command;
    QProcess *process = nullptr; ///< Owned as a child; null while not open.
    qint64 processId = 0;
    DescriptorReader reader;
    QByteArray errorOutput; ///< The last bytes of standard error.
};

} // namespace corvane
