#include <algorithm>
#include <cmath>

#include "QZCore/bezier/bezier_path.h"
#include "QZCore/geometry/angles.h"
#include "QZCore/geometry/distances.h"
#include "QZCore/geometry/points.h"
#include "bezier/element_ends.h"
#include "foundation/single_precision.h"

namespace QZCore {
namespace {

/// How far from a corner its rounding begins, whatever radius was asked for. Drawn
/// figures depend on it.
constexpr float kReach = 20;

/// The point at a distance from `corner` on the way to `target`.
Point towards(Point corner, Point target, float distance) {
    const double angle = radiansBetweenPoints(target, corner);
    return offsetPoint(corner, f32(std::cos(angle) * distance), f32(std::sin(angle) * distance));
}

Point cutTowards(Point corner, Point target) {
    return towards(corner, target, std::fmin(distanceBetweenPoints(target, corner), kReach));
}

/// Reads the first points of elements. A close-path, which has none, leaves the one
/// that was read before: the last corner before it keeps sharp. Wanted.
class FirstPoints {
public:
    explicit FirstPoints(const BezierPath& path) : path_(path) {}

    PathElementType read(std::size_t index) { return path_.elementAtIndex(index, buffer_); }
    [[nodiscard]] Point point() const { return buffer_[0]; }

private:
    const BezierPath& path_;
    Point buffer_[3];
};

/// Where the line begins that closes the path's `count` elements.
Point closingPoint(FirstPoints& points, std::size_t count) {
    const bool closes = points.read(count - 1) == PathElementType::ClosePath;
    if (closes && count > 1) points.read(count - 2);
    return points.point();
}

}  // namespace

std::optional<BezierPath> BezierPath::smoothedPathWithCornerRadius(double /*radius*/) const {
    if (!beginsWithMove(elements_)) return std::nullopt;
    FirstPoints points(*this);
    points.read(0);
    const Point first = points.point();
    const bool hasTrailingMove = elements_.typeAt(elementCount() - 1) == PathElementType::MoveTo;
    const std::size_t count = elementCount() - (hasTrailingMove ? 1 : 0);
    if (count == 0) return std::nullopt;

    const Point last = closingPoint(points, count);
    const Point start = towards(first, last, distanceBetweenPoints(last, first) * 0.5F);
    BezierPath smoothed;
    smoothed.moveToPoint(start);
    Point before = start;
    for (std::size_t i = 0; i < count; ++i) {
        const PathElementType type = points.read(i);
        if (type == PathElementType::ClosePath) smoothed.closePath();
        if (type == PathElementType::ClosePath || type == PathElementType::CurveTo) continue;
        const Point corner = points.point();
        smoothed.lineToPoint(cutTowards(corner, before));
        if (i + 1 < count) points.read(i + 1);
        before = cutTowards(corner, i + 1 < count ? points.point() : start);
        smoothed.curveToPoint(before, corner, corner);
    }
    return smoothed;
}

}  // namespace QZCore
