// Reads the input as an overlay and then messages with what it added. With errors nothing may have
// changed; an overlay that loads must load again.

#include "fuzzchecks.h"
#include "fuzzinput.h"
#include "overlaytestformat.h"

using namespace corvane;
using namespace corvane::fuzz;

namespace {

constexpr const char *literals[] = {
    "Position{}",
    R"(Position{lat: 4.5, lon: -1, height: 7, mode: 2, status: 1, temps: [1, -2, 3], flags: [255],
                offset: -128, name: "some text", time: 1500000, secret: 2.5, code: 7,
                best: {id: 1, snr: 2}, sats: [{id: 1}, {id: 2, inner: {id: 3}}]})",
    R"(Position{lat: nan, lon: inf, height: -2147483648, mode: 99, status: 65535,
                time: 18446744073709551615, secret: -inf, sats: []})",
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    makeApplication();
    const QByteArray text = Input(bytes, count).takeRest();
    const QString name = QStringLiteral("fuzz.json");
    const test::OverlayTestFormat format;
    static const QString unchanged = format.described();
    const OverlayResult result = loadOverlayText(text, name, {format.getInfo()});
    const QString described = format.described();
    if (!result.isOk()) {
        requireEqual(described, unchanged, "nothing is changed with errors");
        return 0;
    }
    for (const char *literal : literals)
        readAll(format.message(QString::fromLatin1(literal)));
    requireEqual(loadOverlayText(text, name, {format.getInfo()}).toString(), QString(),
                 "an overlay can be loaded again");
    requireEqual(format.described(), described, "loading again changes nothing");
    return 0;
}
