#include "systemerror.h"

#include <system_error>

namespace corvane {

QString getSystemErrorText(int error)
{
    return QString::fromStdString(std::generic_category().message(error));
}

} // namespace corvane
