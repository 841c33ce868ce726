#include "streamdecoder.h"

namespace corvane {

StreamDecoder::~StreamDecoder() = default;

} // namespace corvane
