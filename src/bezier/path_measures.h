// What measuring a path along its elements gives.
#pragma once

#include <vector>

#include "bezier/path_steps.h"

namespace QZCore {

/// How exactly the curves of a path are measured, unless the caller says.
inline constexpr float kMeasuringError = 0.1F;

/// The length that one element adds.
[[nodiscard]] float lengthOfElement(const PathStep& step, float maxError);

namespace detail {

/// The measures of a long path.
struct PathMeasures {
    /// The sum of the lengths up to and with each element, summed in single precision
    /// from the first on.
    std::vector<float> totals;
    /// The indices of the move-tos.
    std::vector<std::uint32_t> moves;
};

[[nodiscard]] PathMeasures measuresOf(const PathElements& elements);

}  // namespace detail
}  // namespace QZCore
