#include "streamscanner.h"

namespace corvane {

StreamScanner::~StreamScanner() = default;

} // namespace corvane
