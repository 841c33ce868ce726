#pragma once

#include "bytesource.h"
#include "descriptorreader.h"

#include <QTimer>

namespace corvane {

/**
 * Reads a file descriptor of the system: pipe, terminal, socket, or regular file.
 *
 * A regular file is read to the end that it has when that is reached, so one that grows in the
 * meantime is read to its present end; one that is followed has no end, and is looked at ten times
 * a second for more.
 */
class CORVANEFRAMEWORK_EXPORT FdSource : public ByteSource
{
    Q_OBJECT

public:
    /** Takes \a descriptor over, and so can be opened once. \a name: text for people. */
    FdSource(int descriptor, const QString &name, QObject *parent = nullptr);
    ~FdSource() override;

    /** Whether a regular file is read on when it grows. To be set before open(). */
    void setFollowing(bool newFollowing) { following = newFollowing; }

    QString getName() const override;
    std::optional<qint64> getWaitingBytes() const override;
    bool isLive() const override;
    std::optional<qint64> getSize() const override;
    std::optional<qint64> getPosition() const override;

protected:
    explicit FdSource(const QString &name, QObject *parent = nullptr);

    /** The descriptor to read, newly opened; an invalid one, with errno set, after a failure. */
    virtual FileDescriptor openDescriptor();
    /** \a error: the errno of openDescriptor(), or of finding out what it has opened. */
    virtual QString describeOpenError(int error) const;

    void openDevice() override;
    void closeDevice() override;
    qint64 readDevice(char *data, qint64 maximum) override;
    bool seekDevice(qint64 offset) override;

private:
    qint64 awaitGrowth();

    QString name;
    FileDescriptor givenDescriptor;
    DescriptorReader reader;
    bool regularFile = false;
    bool following = false;
    QTimer growthTimer; ///< Runs out when a followed file is looked at again.
};

} // namespace corvane
