// Between which numbers the measure of a segment lies, for less than measuring it.
#pragma once

#include "QZCore/geometry/plane.h"

namespace QZCore {

struct LengthBounds {
    double least;
    double most;
};

/// Bounds of `lengthOfBezier(segment, maxError)`, rounding included. They are as close
/// as the chords and control polygons of 8 pieces are, of 128 for segments that are
/// more than a million times as long as the error. Infinitely wide where measuring
/// takes no longer: for short segments; and where nothing is sure of the rounding.
[[nodiscard]] LengthBounds boundsOfLength(const Point* segment, float maxError);

}  // namespace QZCore
