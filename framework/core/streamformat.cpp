#include "streamformat.h"

namespace corvane {

StreamFormat::~StreamFormat() = default;

} // namespace corvane
