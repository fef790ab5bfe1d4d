// Where segments cross each other and the outlines of rectangles.
//
// The tests are carried out in single precision. A crossing point is written to
// `out` when one is given, and is moved by half a unit along each axis, away
// from the start of the first segment: hit areas are tuned with that. Segments
// that touch cross; parallel ones, on one line or not, never do. Coordinates
// that are not finite, or further apart than the floats reach, may give either
// answer, and a point that is not finite.
#pragma once

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

QZ_BEGIN_C

/// Whether the segments from `a1` to `a2` and from `b1` to `b2` cross.
QZ_EXPORT bool intersectionOfLineSegments(Point* out, Point a1, Point a2, Point b1, Point b2);

/// Whether the segment from `a` to `b` crosses the outline of `rect`. The point is
/// that on the first edge hit, in the order top, right, bottom, left.
QZ_EXPORT bool intersectionOfRectWithLine(Point* out, Rect rect, Point a, Point b);

/// Whether the segment from the centre of `rect` to `remote` crosses the outline:
/// where a line that connects figures leaves its figure.
QZ_EXPORT bool intersectionOfRectWithLineFromCenterToRemotePoint(Point* out, Rect rect,
                                                                 Point remote);

QZ_END_C

}  // namespace QZCore
