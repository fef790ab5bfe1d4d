// Which element of a path is nearest to a point.
#pragma once

#include "bezier/segment_hit.h"
#include "bezier/stroke_hits.h"

namespace QZCore {

/// The nearest element, as `segmentHitByPoint` has it. None is the index -1.
[[nodiscard]] SegmentHit nearestSegment(const detail::PathElements& elements, Point point,
                                        const HitRadius& radius);

}  // namespace QZCore
