// The two marks among points, sizes and rectangles: the zero values, and the
// huge values, whose components are all the largest finite float.
//
// Comparison is exact, in every component. A rectangle with a huge origin and a
// zero size is neither huge nor zero.
#pragma once

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

QZ_BEGIN_C

/// (3.4028234663852886e+38, 3.4028234663852886e+38).
QZ_EXPORT extern const Point QZHugePoint;

/// 3.4028234663852886e+38 wide and high.
QZ_EXPORT extern const Size QZHugeSize;

/// The huge size at the huge point.
QZ_EXPORT extern const Rect QZHugeRect;

/// Whether both coordinates are 0, of either sign.
[[nodiscard]] QZ_EXPORT bool isZeroPoint(Point point);

/// Whether both extents are 0.
[[nodiscard]] QZ_EXPORT bool isZeroSize(Size size);

/// Whether origin and size are zero.
[[nodiscard]] QZ_EXPORT bool isZeroRect(Rect rect);

/// Whether the point equals `QZHugePoint`.
[[nodiscard]] QZ_EXPORT bool isHugePoint(Point point);

/// Whether the size equals `QZHugeSize`.
[[nodiscard]] QZ_EXPORT bool isHugeSize(Size size);

/// Whether the rectangle equals `QZHugeRect`.
[[nodiscard]] QZ_EXPORT bool isHugeRect(Rect rect);

QZ_END_C

}  // namespace QZCore
