// Boxes around elements, by which most of a path is ruled out of a question.
//
// A box is larger than what it encloses, by more than the tolerances of the
// questions and the rounding of their answers can reach: what a computation finds
// at or near an element lies in its box. Coordinates for which that cannot be
// promised give a box that holds everything.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "bezier/path_steps.h"

namespace QZCore {

struct Box {
    float left;
    float top;
    float right;
    float bottom;
};

inline constexpr float kUnlimited = std::numeric_limits<float>::infinity();
inline constexpr Box kEverywhere{-kUnlimited, -kUnlimited, kUnlimited, kUnlimited};

/// The box around `count` points, of which there is at least one.
[[nodiscard]] Box boxAround(const Point* points, std::size_t count);

/// The box around an element: a line or curve with its ends, or a move-to with the
/// line that closes the subpath before it.
[[nodiscard]] Box boxAround(const PathStep& step);

[[nodiscard]] inline bool isEverywhere(const Box& box) { return box.left == -kUnlimited; }

[[nodiscard]] inline Box unionOf(const Box& a, const Box& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

[[nodiscard]] inline bool doMeet(const Box& a, const Box& b) {
    return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
}

/// Whether the point is at most `reach` away along either axis.
[[nodiscard]] inline bool isWithin(const Box& box, Point point, double reach) {
    return point.x >= box.left - reach && point.x <= box.right + reach &&
           point.y >= box.top - reach && point.y <= box.bottom + reach;
}

/// The square of the distance to the nearest place of the box; 0 inside.
[[nodiscard]] inline double squaredDistance(const Box& box, Point point) {
    const double dx = std::max({box.left - point.x, point.x - box.right, 0.0});
    const double dy = std::max({box.top - point.y, point.y - box.bottom, 0.0});
    return dx * dx + dy * dy;
}

/// The square of the distance to the farthest place of the box.
[[nodiscard]] inline double squaredReach(const Box& box, Point point) {
    const double dx = std::max(point.x - box.left, box.right - point.x);
    const double dy = std::max(point.y - box.top, box.bottom - point.y);
    return dx * dx + dy * dy;
}

}  // namespace QZCore
