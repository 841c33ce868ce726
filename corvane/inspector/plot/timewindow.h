#pragma once

#include <QtGlobal>

namespace corvane {

/** The span of time that a plot shows; it follows the newest value until people look elsewhere. */
class TimeWindow
{
public:
    static constexpr qint64 minimumSpanUs = 1'000;
    static constexpr qint64 maximumSpanUs = 366LL * 24 * 3600 * 1'000'000;
    static constexpr qint64 initialSpanUs = 30'000'000;

    qint64 getFromUs() const { return toUs - spanUs; }

    qint64 getToUs() const { return toUs; }

    qint64 getSpanUs() const { return spanUs; }

    bool isFollowing() const { return following; }

    void setFollowing(bool follow) { following = follow; }

    /** Keeps within the limits; the end stays. */
    void setSpanUs(qint64 newSpanUs);
    /** Ends at \a newestUs if the window follows. */
    void follow(qint64 newestUs);
    /** Shows from \a firstUs to \a lastUs, and stops following. */
    void show(qint64 firstUs, qint64 lastUs);
    /** Moves by \a spans times the shown span, and stops following. */
    void pan(double spans);
    /** Shows \a factor times the span; \a anchorUs stays in its place, or the end if following. */
    void zoom(double factor, qint64 anchorUs);

private:
    qint64 toUs = 0;
    qint64 spanUs = initialSpanUs;
    bool following = true;
};

} // namespace corvane
