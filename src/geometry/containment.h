// What lies inside of a rectangle.
#pragma once

#include "geometry/edges.h"

namespace QZCore {

/// Whether `point` lies in `rect`. The top and left edges belong to it, the right
/// and bottom ones do not; nothing lies in a rectangle of negative extent.
[[nodiscard]] inline bool contains(Rect rect, Point point) {
    return rect.origin.x <= point.x && point.x < rightOf(rect) && rect.origin.y <= point.y &&
           point.y < bottomOf(rect);
}

/// Whether the rectangle has an area.
[[nodiscard]] inline bool hasArea(Rect rect) { return rect.size.width > 0 && rect.size.height > 0; }

/// Whether two rectangles have some area in common.
[[nodiscard]] inline bool overlap(Rect a, Rect b) {
    return hasArea(a) && hasArea(b) && a.origin.x < rightOf(b) && b.origin.x < rightOf(a) &&
           a.origin.y < bottomOf(b) && b.origin.y < bottomOf(a);
}

/// `rect` grown by `margin` on every side.
[[nodiscard]] inline Rect outset(Rect rect, double margin) {
    return {{rect.origin.x - margin, rect.origin.y - margin},
            {rect.size.width + 2 * margin, rect.size.height + 2 * margin}};
}

}  // namespace QZCore
