#include <algorithm>
#include <array>

#include "QZCore/bezier/bezier_path.h"
#include "bezier/cubic_turns.h"
#include "bezier/element_ends.h"
#include "bezier/path_boxes.h"
#include "geometry/edges.h"

namespace QZCore {
namespace {

/// How often something crosses the ray from a point to the right: 1 for each crossing
/// towards growing y, -1 for each one back. Ends that lie on the ray belong to what
/// is below it, so that each crossing counts once.
int crossingsOf(double startY, double endY, double y) {
    return static_cast<int>(startY <= y) - static_cast<int>(endY <= y);
}

int crossingsOfLine(Point start, Point end, Point point) {
    const int crossings = crossingsOf(start.y, end.y, point.y);
    if (crossings == 0) return 0;
    const double t = (point.y - start.y) / (end.y - start.y);
    return start.x + t * (end.x - start.x) > point.x ? crossings : 0;
}

/// Where a coordinate that only grows or only falls from `low` to `high` has a value
/// between those that it has there.
double parameterOf(const CubicCoordinate& curve, double value, double low, double high) {
    constexpr int kRounds = 53;  // halve the parameter to the resolution of its numbers
    const bool grows = curve.at(low) < curve.at(high);
    for (int round = 0; round < kRounds; ++round) {
        const double middle = (low + high) / 2;
        ((curve.at(middle) <= value) == grows ? low : high) = middle;
    }
    return low;
}

int crossingsOfCurve(const PathStep& step, Point point) {
    const Point* p = step.points;
    const bool isAbove = step.current.y <= point.y;
    if ((p[0].y <= point.y) == isAbove && (p[1].y <= point.y) == isAbove &&
        (p[2].y <= point.y) == isAbove) {
        return 0;
    }
    const CubicCoordinate x{step.current.x, p[0].x, p[1].x, p[2].x};
    const auto [left, right] = std::minmax({x.p0, x.p1, x.p2, x.p3});
    if (right <= point.x) return 0;
    if (left > point.x) return crossingsOf(step.current.y, p[2].y, point.y);

    const CubicCoordinate y{step.current.y, p[0].y, p[1].y, p[2].y};
    std::array<double, 2> turns = y.turns();
    if (turns[0] > turns[1]) std::swap(turns[0], turns[1]);
    int crossings = 0;
    double low = 0;
    for (const double high : {turns[0], turns[1], 1.0}) {
        if (!(high > low && high <= 1)) continue;
        const int own =
            crossingsOf(low == 0 ? y.p0 : y.at(low), high == 1 ? y.p3 : y.at(high), point.y);
        if (own != 0 && x.at(parameterOf(y, point.y, low, high)) > point.x) crossings += own;
        low = high;
    }
    return crossings;
}

int crossingsOfStep(const PathStep& step, Point point) {
    if (step.type == PathElementType::CurveTo) return crossingsOfCurve(step, point);
    // A move-to closes the subpath before it.
    const bool leaves = step.type == PathElementType::MoveTo;
    return crossingsOfLine(step.current, leaves ? step.subpathStart : step.end(), point);
}

/// The crossings of the line that closes the last subpath.
int crossingsAtEnd(const detail::PathElements& elements, Point point) {
    const std::size_t count = elements.count();
    if (count == 0 || elements.typeAt(count - 1) == PathElementType::ClosePath) return 0;
    return crossingsOfLine(endOfElement(elements, count - 1), subpathStartBefore(elements, count),
                           point);
}

/// How often the path goes around the point.
int windingsAround(const detail::PathElements& elements, Point point) {
    int windings = crossingsAtEnd(elements, point);
    const detail::PathBoxes* boxes = elements.boxesIfAskedAgain();
    if (boxes == nullptr) {
        for (const PathStep& step : PathSteps(elements)) windings += crossingsOfStep(step, point);
        return windings;
    }
    boxes->tree.visitUntil(
        [&](const Box& box) {
            return point.x <= box.right && point.y >= box.top && point.y <= box.bottom;
        },
        [&](std::size_t index) {
            const PathStep step = stepAt(elements, *boxes, SubpathRule::EveryMove, index);
            windings += crossingsOfStep(step, point);
            return false;
        });
    return windings;
}

bool encloses(Rect outer, Rect inner) {
    return outer.origin.x <= inner.origin.x && outer.origin.y <= inner.origin.y &&
           rightOf(inner) <= rightOf(outer) && bottomOf(inner) <= bottomOf(outer);
}

}  // namespace

bool BezierPath::containsPoint(Point point) const {
    const int windings = windingsAround(elements_, point);
    return windingRule_ == WindingRule::NonZero ? windings != 0 : windings % 2 != 0;
}

bool BezierPath::containsPath(const BezierPath& path) const {
    if (path.isEmpty()) return false;
    // Wanted: figures are sorted by their rectangles first.
    if (encloses(bounds(), path.bounds())) return true;
    if (!beginsWithMove(path.elements_)) return false;
    bool isFirst = true;
    for (const PathStep& step : PathStepsBy<SubpathRule::MoveAfterClose>(path.elements())) {
        if (!isFirst && !containsPoint(step.end())) return false;
        isFirst = false;
    }
    return true;
}

}  // namespace QZCore
