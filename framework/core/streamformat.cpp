#include "streamformat.h"

#include "streamscanner.h"

namespace corvane {

StreamFormat::~StreamFormat() = default;

std::unique_ptr<StreamScanner> StreamFormat::makeScanner(QByteArrayView, const QString &) const
{
    return nullptr;
}

} // namespace corvane
