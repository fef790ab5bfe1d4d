#include "bezier/quarter_ellipse.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "bezier/arcs.h"

namespace QZCore {
QuarterEllipse::QuarterEllipse(double a, double b) : a_(a), b_(b) {
    constexpr double kStep = std::numbers::pi / 2 / kChords;
    Point before{a, 0};
    for (std::size_t i = 1; i <= kChords; ++i) {
        const Point point = pointAt(directionAt(kStep * static_cast<double>(i)));
        const Point d{point.x - before.x, point.y - before.y};
        totals_[i] = totals_[i - 1] + std::sqrt(d.x * d.x + d.y * d.y);
        before = point;
    }
}

Point QuarterEllipse::pointAt(Point direction) const {
    return {a_ * direction.x, b_ * direction.y};
}

/// The point at `depth` outside of the arc, straight over the one in that direction.
Point QuarterEllipse::pointOver(Point direction, double depth) const {
    const Point point = pointAt(direction);
    const Point normal{direction.x * b_, direction.y * a_};
    const double scale = depth / std::hypot(normal.x, normal.y);
    return {point.x + normal.x * scale, point.y + normal.y * scale};
}

Point QuarterEllipse::directionBehind(double length) const {
    constexpr double kStep = std::numbers::pi / 2 / kChords;
    const auto* next = std::upper_bound(totals_.begin() + 1, totals_.end() - 1, length);
    const double before = *(next - 1);
    const auto chords = static_cast<double>(next - 1 - totals_.begin());
    return directionAt(kStep * (chords + (length - before) / (*next - before)));
}

std::vector<Point> QuarterEllipse::teeth(std::uint32_t count, double depth) const {
    std::vector<Point> points;
    points.reserve(std::size_t{count} * 2 + 1);
    points.push_back({a_, 0});
    const double half = length() / count / 2;
    for (std::uint32_t i = 0; i < count; ++i) {
        points.push_back(pointOver(directionBehind(half * (2.0 * i + 1)), depth));
        points.push_back(pointAt(directionBehind(half * (2.0 * i + 2))));
    }
    points.back() = {0, b_};
    return points;
}

}  // namespace QZCore
