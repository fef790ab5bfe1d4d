// Cubic Bézier segments: splitting, length, and the direction between points.
//
// A segment is an array of four points: start, first control point, second
// control point, end. Lengths and directions are floats, computed in single
// precision.
#pragma once

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

QZ_BEGIN_C

/// The arc length, by splitting the segment until control polygon and chord differ
/// by at most `maxError` in every piece. The bound is that of a piece, not of the
/// whole. Where the rounding of distances alone exceeds it (a bound of 0 or less, in
/// unlucky cases), splitting ends after a quarter of a million pieces, once nothing
/// but rounding is left of the difference. Infinity or NaN for coordinates that are
/// not finite, or further apart than the floats reach.
[[nodiscard]] QZ_EXPORT float lengthOfBezier(const Point* segment, float maxError);

/// Splits the segment at `t` into one up to there and one from there. `left` and
/// `right` have room for four points each, may be null, and may be `segment`.
QZ_EXPORT void subdivideBezierAtT(const Point* segment, Point* left, Point* right, float t);

/// Splits the segment in the middle of its parameter, as `subdivideBezierAtT` does.
QZ_EXPORT void splitBezierCurveTo(const Point* segment, Point* left, Point* right);

/// The direction from `a` to `b` in radians, between -pi and pi; 0 for equal
/// points.
[[nodiscard]] QZ_EXPORT float Slope(Point a, Point b);

QZ_END_C

}  // namespace QZCore
