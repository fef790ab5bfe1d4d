// The least-squares fit of cubics to points.
#pragma once

#include <vector>

#include "QZCore/geometry/plane.h"

namespace QZCore {

/// Fits at most 256 cubics. Four points for each: start, control points, end. Empty
/// where none fit, a point is farther out than 1e60, or the error is negative or NaN.
[[nodiscard]] std::vector<Point> fittedCubics(const std::vector<Point>& points, double error);

}  // namespace QZCore
