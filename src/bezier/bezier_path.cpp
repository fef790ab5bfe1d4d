#include "QZCore/bezier/bezier_path.h"

#include <algorithm>
#include <utility>

#include "bezier/path_steps.h"

namespace QZCore {

void BezierPath::moveToPoint(Point point) { elements_.append(PathElementType::MoveTo, &point); }

void BezierPath::lineToPoint(Point point) { elements_.append(PathElementType::LineTo, &point); }

void BezierPath::curveToPoint(Point point, Point controlPoint1, Point controlPoint2) {
    const Point points[] = {controlPoint1, controlPoint2, point};
    elements_.append(PathElementType::CurveTo, points);
}

void BezierPath::closePath() { elements_.append(PathElementType::ClosePath, nullptr); }

void BezierPath::appendBezierPathWithPoints(const Point* points, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        elements_.append(isEmpty() ? PathElementType::MoveTo : PathElementType::LineTo, points + i);
    }
}

void BezierPath::appendBezierPath(const BezierPath& path) {
    const detail::PathElements appended = path.elements_;  // which may be this path's own
    for (const PathStep& step : PathSteps(appended)) elements_.append(step.type, step.points);
}

void BezierPath::removeAllPoints() { elements_.clear(); }

PathElementType BezierPath::elementAtIndex(std::size_t index, Point* associatedPoints) const {
    if (index >= elementCount()) return PathElementType::ClosePath;
    const PathElementType type = elements_.typeAt(index);
    if (associatedPoints != nullptr) {
        std::copy_n(elements_.pointsAt(index), detail::pointCountOf(type), associatedPoints);
    }
    return type;
}

void BezierPath::setAssociatedPoints(const Point* points, std::size_t atIndex) {
    if (points == nullptr || atIndex >= elementCount()) return;
    const std::uint32_t word = elements_.words()[atIndex];
    std::copy_n(points, detail::pointCountOf(detail::PathElements::typeOf(word)),
                elements_.changeablePoints() + detail::PathElements::firstPointOf(word));
}

void BezierPath::setLineDash(std::vector<double> pattern, double phase) {
    lineDash_ = std::move(pattern);
    lineDashPhase_ = phase;
}

}  // namespace QZCore
