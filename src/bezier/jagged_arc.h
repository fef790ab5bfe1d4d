// Quarter arcs with teeth.
#pragma once

#include <cstdint>

#include "bezier/arcs.h"

namespace QZCore {

/// The length of the arc.
[[nodiscard]] double lengthOf(const QuarterArc& arc);

/// Appends teeth that stand on the arc at even distances and point to its outside; its
/// start is not appended.
void appendTeethOnArc(BezierPath& path, const QuarterArc& arc, std::uint32_t teeth, double depth);

}  // namespace QZCore
