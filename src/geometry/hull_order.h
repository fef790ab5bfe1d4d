// The order in which the hull walks its points.
#pragma once

#include <span>

#include "QZCore/geometry/plane.h"

namespace QZCore {

/// Sorts by x and, where that is equal, by y; NaN comes last. Without the second
/// key the ends of a hull could not be told where several points share the least
/// or the greatest x.
void sortForHull(std::span<Point> points);

}  // namespace QZCore
