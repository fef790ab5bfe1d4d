// What a search for an element finds.
#pragma once

#include <cstddef>

#include "bezier/path_steps.h"

namespace QZCore {

struct SegmentHit {
    std::ptrdiff_t index = 0;
    float position = 0;  // along the element, from 0 to 1
    float distanceSquared = 0;
};

/// Whether the first point of an element is exactly that point, which then hits it
/// without a measurement.
[[nodiscard]] inline bool beginsWith(const PathStep& step, Point point) {
    return step.type != PathElementType::ClosePath && step.points[0] == point;
}

}  // namespace QZCore
