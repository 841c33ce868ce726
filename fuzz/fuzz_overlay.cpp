// Reads the input as an overlay and then messages with what it added. With errors nothing may have
// changed; an overlay that loads must load again, also from a file.

#include "fuzzchecks.h"
#include "fuzzinput.h"
#include "overlaytestformat.h"

#include <QFile>
#include <QTemporaryDir>

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

QString write(const QByteArray &text)
{
    static const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("fuzz.json")));
    require(file.open(QIODevice::WriteOnly) && file.write(text) == text.size(), "it is written");
    require(!loadOverlay(folder.path()).isOk(), "a folder is no overlay");
    require(!loadOverlay(folder.filePath(QStringLiteral("none"))).isOk(), "nothing is no overlay");
    return file.fileName();
}

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
    requireEqual(loadOverlay(write(text)).toString(), QString(), "an overlay can be loaded again");
    requireEqual(format.described(), described, "loading again changes nothing");
    return 0;
}
