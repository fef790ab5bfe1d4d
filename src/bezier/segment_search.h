// Which element of a path a point hits, or is nearest to.
#pragma once

#include <cstddef>

#include "QZCore/bezier/bezier_path.h"

namespace QZCore {

/// The index of the first element that the point hits; 0, which is never hit, for
/// none. A point that equals the first point of an element hits that one, at the
/// position and the distance 0. `position` (along the element, 0 to 1) and `distance`
/// (squared) are written when given, 0 where nothing is hit.
///
/// A padding of exactly -1 asks for the nearest element: -1 for none. Lines then
/// count as endless, and those of no length do not count.
std::ptrdiff_t segmentHitByPoint(const BezierPath& path, Point point, float* position,
                                 float padding, float* distance);

}  // namespace QZCore
