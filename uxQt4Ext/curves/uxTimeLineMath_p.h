#pragma once

// Frame/pixel conversions shared by the timeline and the time range widget.
// Everything is computed in double and saturated into int, so that any int a
// host passes (INT_MIN, INT_MAX, an inverted interval) stays defined
// behaviour: no signed overflow, no float->int conversion of NaN, infinity or
// out-of-range values.

#include <QtGlobal>

#include <cmath>
#include <limits>

namespace uxTimeLineMath {

/// @p value saturated into the int range; NaN gives 0.
inline int saturate(double value)
{
    if (std::isnan(value))
        return 0;
    if (value <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    if (value >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    return static_cast<int>(value);
}

inline int saturate(qint64 value) { return saturate(double(value)); }

/// Rounds half away from zero, saturated.
inline int d2i(double value) { return saturate(value < 0.0 ? value - 0.5 : value + 0.5); }

/// Pixels per frame of @p width pixels showing @p frames frames. Fewer than
/// one frame (an empty or inverted interval) counts as one, so the ratio stays
/// finite and positive for any positive width.
inline double pixelsPerFrame(int width, double frames) { return double(qMax(width, 0)) / qMax(frames, 1.0); }

/// The frame under pixel @p x.
inline int toLocal(int x, int start, double pixelsPerFrame)
{
    if (!(pixelsPerFrame > 0.0) || !std::isfinite(pixelsPerFrame))
        return start;
    return saturate(std::floor(x / pixelsPerFrame) + double(start));
}

/// @p x limited to a band a little wider than [0, width]: anything outside is
/// invisible anyway, and painting keeps to coordinates the raster engine handles.
inline int paintable(int x, int width, int margin) { return qBound(-margin, x, width + margin); }

} // namespace uxTimeLineMath
