// Distances between points, and from points to segments.
//
// Distances are floats: above the largest float they are infinite.
#pragma once

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

QZ_BEGIN_C

/// The distance between two points; exactly 0 for equal ones, infinite ones
/// included.
[[nodiscard]] QZ_EXPORT float distanceBetweenPoints(Point p, Point q);

/// The square of the distance, without the rounding of a root.
[[nodiscard]] QZ_EXPORT float distanceSquaredBetweenPoints(Point p, Point q);

/// The distance from `point` to the nearest point of the segment from `a` to `b`,
/// which may have no length. `outDelta`, when given, receives the way there,
/// from `point`, as a pair of floats.
[[nodiscard]] QZ_EXPORT float distanceBetweenPointAndLine(Point point, Point a, Point b,
                                                          Point* outDelta);

/// The same, squared.
[[nodiscard]] QZ_EXPORT float distanceSquaredBetweenPointAndLine(Point point, Point a, Point b,
                                                                 Point* outDelta);

/// Whether `point` is within `tolerance` of the segment from `a` to `b`, for hit
/// areas: inside of the segment's rectangle, grown by the tolerance on every
/// side, and no further from the line than that, measured across for lines
/// along an axis and else along x or y, whichever is nearer. The grown
/// rectangle's right and bottom edges do not belong to it.
[[nodiscard]] QZ_EXPORT bool isPointNearLine(Point point, Point a, Point b, float tolerance);

QZ_END_C

}  // namespace QZCore
