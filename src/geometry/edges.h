// The edges of a rectangle and the lines half-way between them. Left and top are
// those of the origin.
#pragma once

#include "QZCore/geometry/plane.h"

namespace QZCore {

[[nodiscard]] inline double rightOf(Rect rect) { return rect.origin.x + rect.size.width; }
[[nodiscard]] inline double bottomOf(Rect rect) { return rect.origin.y + rect.size.height; }
[[nodiscard]] inline double middleAcross(Rect rect) { return rect.origin.x + rect.size.width / 2; }
[[nodiscard]] inline double middleDown(Rect rect) { return rect.origin.y + rect.size.height / 2; }

}  // namespace QZCore
