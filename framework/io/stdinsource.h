#pragma once

#include "fdsource.h"

namespace corvane {

/**
 * Reads the standard input of the process, be it a pipe, a terminal or a redirected file. It is
 * left in the mode in which it was found.
 */
class CORVANEFRAMEWORK_EXPORT StdinSource : public FdSource
{
    Q_OBJECT

public:
    explicit StdinSource(QObject *parent = nullptr);
    ~StdinSource() override;

protected:
    FileDescriptor openDescriptor() override;
    QString describeOpenError(int error) const override;
};

} // namespace corvane
