// Angles, and the directions between points.
//
// Angles are floats, in radians unless a name says degrees. They grow from the
// +x axis towards +y, so clockwise where y points down. What is computed of
// coordinates that are not finite may be NaN.
#pragma once

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

QZ_BEGIN_C

// ---- Conversion -------------------------------------------------------------

/// `degrees` in radians, not brought into one turn.
[[nodiscard]] QZ_EXPORT float radiansFromDegrees(float degrees);

/// `radians` in degrees, not brought into one turn.
[[nodiscard]] QZ_EXPORT float degreesFromRadians(float radians);

// ---- Between points ---------------------------------------------------------

/// The direction from `from` to `to`, between -pi and pi. Equal points give 0.
[[nodiscard]] QZ_EXPORT float radiansBetweenPoints(Point to, Point from);

/// The direction from `from` to `to` in degrees, from 0 to below 360. Equal
/// points give 0. A direction less than about 1.5e-5 degrees short of +x is
/// rounded to 360 with the rest of the arithmetic.
[[nodiscard]] QZ_EXPORT float degreesBetweenPoints(Point to, Point from);

// ---- On rectangles ----------------------------------------------------------

/// How far `degrees`, from 0 to 360, are from the nearest multiple of 90: 0 to
/// 45. Not of 45, in spite of the name. Negative values are returned as they are.
[[nodiscard]] QZ_EXPORT float degreesFromNearest45(float degrees);

/// The direction of `point` from the centre of `rect`, with the aspect ratio
/// taken out: a corner is always at an odd multiple of 45 degrees.
[[nodiscard]] QZ_EXPORT float angleOfPointOnRect(Rect rect, Point point);

/// The point on the outline of `rect` in the direction `angle` from its centre,
/// with the aspect ratio taken out. The way around the outline is that of the
/// ratio of cosine and sine, not of a ray.
[[nodiscard]] QZ_EXPORT Point pointOnRectFromAngle(Rect rect, float angle);

QZ_END_C

}  // namespace QZCore
