// Rotated rectangles: a figure's frame, turned by an angle about a centre, and
// what selection and layout ask of it.
//
// Angles are float radians, in the sense of `rotatePointAroundPoint`. A point
// lies in a rectangle when it is on the top or left edge or inside; the right
// and bottom edges do not belong to it.
#pragma once

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

QZ_BEGIN_C

/// The smallest x and the smallest y of the rotated corners, at most
/// 3.4028234663852886e+38 each.
[[nodiscard]] QZ_EXPORT Point minimumXYAfterRotation(Rect rect, Point center, float angle);

/// The largest x and the largest y of the rotated corners, but at least
/// 1.1754943508222875e-38 each: a frame at negative coordinates has that value.
[[nodiscard]] QZ_EXPORT Point maximumXYAfterRotation(Rect rect, Point center, float angle);

/// Whether a rubber band touches a figure: a corner of the figure lies in
/// `selection`, an edge of it crosses the selection's outline or, with
/// `insideFlag`, the selection lies wholly inside of the figure. Without a crossing
/// of edges or a corner inside, a selection within the figure does not count.
[[nodiscard]] QZ_EXPORT bool selectionRectIncludesRotatedRect(Rect selection, Rect rect,
                                                              float angle, Point center,
                                                              bool insideFlag);

/// Whether `r1`, rotated by `angle1` about its centre, lies inside of `r2`, rotated
/// by `angle2` about its own.
[[nodiscard]] QZ_EXPORT bool rotatedRectInRotatedRect(Rect r1, Rect r2, float angle1, float angle2);

QZ_END_C

}  // namespace QZCore
