// Points: arithmetic, rounding, and rotation about a centre.
//
// The roundings take each coordinate in single precision: above 2^24 they see
// even numbers only, and coordinates beyond the floats are infinite to them.
// Distances and angles are floats; angles are radians and grow from the +x axis
// towards +y.
#pragma once

#include <vector>

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

QZ_BEGIN_C

// ---- Arithmetic -------------------------------------------------------------

/// The point moved by (`dx`, `dy`).
[[nodiscard]] QZ_EXPORT Point offsetPoint(Point point, float dx, float dy);

/// The sum of both, coordinate by coordinate.
[[nodiscard]] QZ_EXPORT Point offsetPointByPoint(Point point, Point offset);

/// `point` less `offset`, coordinate by coordinate.
[[nodiscard]] QZ_EXPORT Point subtractPointByPoint(Point point, Point offset);

/// The point at `distance` from `point` in the direction `angle`.
[[nodiscard]] QZ_EXPORT Point relativePoint(Point point, float distance, float angle);

// ---- Rounding ---------------------------------------------------------------

/// Each coordinate as a float, rounded to the nearest whole number, halves away
/// from zero.
[[nodiscard]] QZ_EXPORT Point roundPoint(Point point);

/// Each coordinate as a float, rounded down.
[[nodiscard]] QZ_EXPORT Point integralPoint(Point point);

/// Each coordinate as a float, rounded down, and a half: a stroke of one unit
/// through the point covers whole pixels.
[[nodiscard]] QZ_EXPORT Point nonIntegralPoint(Point point);

// ---- Rotation ---------------------------------------------------------------

/// The point rotated about `center`. An angle of exactly 0 changes nothing;
/// else direction and distance from the centre are taken as floats, so that a
/// point a thousand units away is exact to about a ten-thousandth.
[[nodiscard]] QZ_EXPORT Point rotatePointAroundPoint(Point point, Point center, float angle);

QZ_END_C

/// All points rotated about `center`, in their order. An angle of exactly 0
/// gives back the very array that was passed; hand it over with `std::move` to
/// save the copy.
[[nodiscard]] QZ_EXPORT std::vector<Point> rotateArrayOfPointsAroundPoint(std::vector<Point> points,
                                                                          Point center,
                                                                          float angle);

}  // namespace QZCore
