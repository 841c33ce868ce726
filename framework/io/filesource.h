#pragma once

#include "fdsource.h"

namespace corvane {

/**
 * Reads the file of a path, to the end that it has when that is reached. A path may also name a
 * pipe or a device, which is then read as it delivers.
 */
class CORVANEFRAMEWORK_EXPORT FileSource : public FdSource
{
    Q_OBJECT

public:
    explicit FileSource(const QString &path, QObject *parent = nullptr);
    ~FileSource() override;

protected:
    FileDescriptor openDescriptor() override;
    QString describeOpenError(int error) const override;

private:
    QString path;
};

} // namespace corvane
