#include "QZCore/geometry/rotated_rectangles.h"

#include <algorithm>
#include <array>
#include <limits>

#include "QZCore/geometry/intersections.h"
#include "QZCore/geometry/points.h"
#include "QZCore/geometry/rectangles.h"
#include "geometry/containment.h"
#include "geometry/selection_reach.h"

namespace QZCore {
namespace {

using Corners = std::array<Point, 4>;

Corners cornersOf(Rect rect) {
    Corners corners;
    convertRectToEndPoints(rect, corners.data());
    return corners;
}

Corners rotatedCorners(Rect rect, Point center, float angle) {
    Corners corners = cornersOf(rect);
    for (Point& corner : corners) corner = rotatePointAroundPoint(corner, center, angle);
    return corners;
}

/// Whether an edge between neighbouring corners crosses the outline.
bool edgeCrosses(const Corners& corners, Rect outline) {
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point& next = corners[(i + 1) % corners.size()];
        if (intersectionOfRectWithLine(nullptr, outline, corners[i], next)) return true;
    }
    return false;
}

}  // namespace

Point minimumXYAfterRotation(Rect rect, Point center, float angle) {
    constexpr double kLargest = std::numeric_limits<float>::max();
    Point minimum{kLargest, kLargest};
    for (const Point& corner : rotatedCorners(rect, center, angle)) {
        minimum = {std::min(minimum.x, corner.x), std::min(minimum.y, corner.y)};
    }
    return minimum;
}

Point maximumXYAfterRotation(Rect rect, Point center, float angle) {
    // The smallest positive float, not the least one: frames at negative
    // coordinates are to report it.
    constexpr double kFloor = std::numeric_limits<float>::min();
    Point maximum{kFloor, kFloor};
    for (const Point& corner : rotatedCorners(rect, center, angle)) {
        maximum = {std::max(maximum.x, corner.x), std::max(maximum.y, corner.y)};
    }
    return maximum;
}

bool selectionRectIncludesRotatedRect(Rect selection, Rect rect, float angle, Point center,
                                      bool insideFlag) {
    const SelectionReach reach(rect, center);
    if (reach.isOutside(selection)) return false;
    if (reach.isInside(selection)) return true;

    Corners corners = cornersOf(rect);
    for (Point& corner : corners) {
        corner = rotatePointAroundPoint(corner, center, angle);
        if (contains(selection, corner)) return true;
    }
    if (edgeCrosses(corners, selection)) return true;
    if (!insideFlag) return false;
    return std::ranges::all_of(cornersOf(selection), [&](Point corner) {
        return contains(rect, rotatePointAroundPoint(corner, center, -angle));
    });
}

bool rotatedRectInRotatedRect(Rect r1, Rect r2, float angle1, float angle2) {
    const Point center1 = centerOfRect(r1);
    const Point center2 = centerOfRect(r2);
    return std::ranges::all_of(cornersOf(r1), [&](Point corner) {
        const Point rotated = rotatePointAroundPoint(corner, center1, angle1);
        return contains(r2, rotatePointAroundPoint(rotated, center2, -angle2));
    });
}

}  // namespace QZCore
