#pragma once

#include "overlayloader.h"
#include "testformat.h"

namespace corvane::test {

/** A format "Demo" with the types Position, Satellite (part of Position) and Empty. */
class OverlayTestFormat : public TestFormat
{
public:
    OverlayTestFormat();

    OverlayResult load(const QString &overlay) const;
    /** Loads an overlay with the text \a members in the object of Position. */
    OverlayResult loadPosition(const QString &members) const;
    /** Loads an overlay that adds virtual fields to Position: "a = lat + 1; b = a * 2". */
    OverlayResult loadVirtual(const QString &definitions) const;

    /** All that the descriptions of the format say, as indented text. */
    QString described() const;
    /** The interpreted text of the only value of a field of Position; "-" where it has none. */
    QString text(const QString &field, const QString &message) const;
};

/** The overlay that loadPosition() loads. */
QString positionOverlay(const QString &members);

} // namespace corvane::test
