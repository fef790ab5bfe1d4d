// Rectangles: making them, their anchor points, rounding, and the gap between
// two.
//
// The anchors are plain sums of origin and extents. A rectangle of negative
// width or height keeps its names: its "right" is then left of its "left".
#pragma once

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

QZ_BEGIN_C

// ---- Making -----------------------------------------------------------------

/// The rectangle of which `a` and `b` are opposite corners.
[[nodiscard]] QZ_EXPORT Rect rectFromPoints(Point a, Point b);

/// The rectangle of that size at (0, 0).
[[nodiscard]] QZ_EXPORT Rect rectFromSize(Size size);

/// The rectangle of that origin and size.
[[nodiscard]] QZ_EXPORT Rect rectFromOriginSize(Point origin, Size size);

// ---- Anchors ----------------------------------------------------------------

/// The origin.
[[nodiscard]] QZ_EXPORT Point topLeftOfRect(Rect rect);

/// The middle of the top edge.
[[nodiscard]] QZ_EXPORT Point topCenterOfRect(Rect rect);

/// The right end of the top edge.
[[nodiscard]] QZ_EXPORT Point topRightOfRect(Rect rect);

/// The middle of the right edge.
[[nodiscard]] QZ_EXPORT Point rightCenterOfRect(Rect rect);

/// The corner opposite the origin.
[[nodiscard]] QZ_EXPORT Point bottomRightOfRect(Rect rect);

/// The corner opposite the origin; the same as `bottomRightOfRect`.
[[nodiscard]] QZ_EXPORT Point pointOnRectOppositeOrigin(Rect rect);

/// The middle of the bottom edge.
[[nodiscard]] QZ_EXPORT Point bottomCenterOfRect(Rect rect);

/// The left end of the bottom edge.
[[nodiscard]] QZ_EXPORT Point bottomLeftOfRect(Rect rect);

/// The middle of the left edge.
[[nodiscard]] QZ_EXPORT Point leftCenterOfRect(Rect rect);

/// The middle of the rectangle.
[[nodiscard]] QZ_EXPORT Point centerOfRect(Rect rect);

/// Writes the four corners to `out`, which has room for four: top left, bottom
/// left, bottom right, top right. Without `out` nothing happens.
QZ_EXPORT void convertRectToEndPoints(Rect rect, Point* out);

// ---- Rounding ---------------------------------------------------------------

/// The origin rounded down and the size rounded up, each by itself: the result
/// need not reach as far as the rectangle.
[[nodiscard]] QZ_EXPORT Rect integralRect(Rect rect);

/// The rectangle with its four edges on half units, where strokes of one unit
/// cover whole pixels. Edges are taken in single precision.
[[nodiscard]] QZ_EXPORT Rect nonIntegralRect(Rect rect);

// ---- Distance ---------------------------------------------------------------

/// The gap between two rectangles, as a float: 0 when they overlap or touch, else
/// the distance of their nearest points.
[[nodiscard]] QZ_EXPORT float distanceBetweenRectangles(Rect r1, Rect r2);

QZ_END_C

}  // namespace QZCore
