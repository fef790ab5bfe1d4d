// The test for coordinates that are numbers.
#pragma once

#include <cmath>

#include "QZCore/geometry/plane.h"

namespace QZCore {

/// Whether neither coordinate is infinite or NaN.
[[nodiscard]] inline bool isFinite(Point point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

}  // namespace QZCore
