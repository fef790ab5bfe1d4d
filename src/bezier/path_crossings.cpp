#include <cmath>

#include "QZCore/bezier/bezier_path.h"
#include "bezier/crossings.h"
#include "bezier/curve_crossings.h"
#include "bezier/element_ends.h"
#include "bezier/path_boxes.h"
#include "geometry/containment.h"

namespace QZCore {
namespace {

/// A place where an element crosses a line, as the parameters of both.
struct Crossing {
    double time;
    double lineTime;
};

/// Calls `found` for each crossing of an element with a line until it returns true;
/// whether it did.
template <class Found>
bool crossStep(const PathStep& step, const LineRecord& line, Found found) {
    if (step.type == PathElementType::MoveTo) return false;
    CrossingTimes lineTimes;
    CrossingTimes times;
    int count = 0;
    if (step.type == PathElementType::CurveTo) {
        const Point* p = step.points;
        count = curvedIntersection(lineTimes, times,
                                   parameterizeCurve(step.current, p[2], p[0], p[1]), line);
    } else {
        const LineRecord segment = parameterizeLine(step.current, step.end());
        count = straightLineIntersection(lineTimes.data(), times.data(), segment, line) ? 1 : 0;
    }
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        if (found(Crossing{times[i], lineTimes[i]})) return true;
    }
    return false;
}

/// Which boxes a line passes.
class LineReach {
public:
    LineReach(Point start, Point end, const LineRecord& line)
        : box_(boxAround(std::array{start, end}.data(), 2)),
          isEverywhere_(isEverywhere(box_)),
          line_(line) {}

    [[nodiscard]] bool passes(const Box& box) const {
        return doMeet(box, box_) && (isEverywhere_ || !liesOnOneSide(box));
    }

private:
    [[nodiscard]] bool liesOnOneSide(const Box& box) const {
        const double width = static_cast<double>(box.right) - box.left;
        const double height = static_cast<double>(box.bottom) - box.top;
        const Point center{box.left + width / 2, box.top + height / 2};
        const Point& e = line_.direction;
        const Point fromOrigin{center.x - line_.origin.x, center.y - line_.origin.y};
        return std::abs(crossProduct(e, fromOrigin)) >
               (std::abs(e.x) * height + std::abs(e.y) * width) / 2;
    }

    Box box_;
    bool isEverywhere_;
    const LineRecord& line_;
};

template <class Found>
bool crossWithLine(const detail::PathElements& elements, Point start, Point end, Found found) {
    const LineRecord line = parameterizeLine(start, end);
    const LineReach reach(start, end, line);
    return visitUntil<SubpathRule::EveryMove>(
        elements, [&](const Box& box) { return reach.passes(box); },
        [&](std::size_t, const PathStep& step) { return crossStep(step, line, found); });
}

bool crossWithLine(const BezierPath& path, Point start, Point end, CrossingSink& sink) {
    return crossWithLine(path.elements(), start, end,
                         [&](const Crossing& crossing) { return sink.add(crossing.time); });
}

/// Crosses an element with a curve. The positions are those along the element.
bool crossStepWithCurve(const PathStep& step, const CubicPoints& curve, double lineWidth,
                        CrossingSink& sink) {
    if (step.type == PathElementType::MoveTo) return false;
    if (step.type == PathElementType::CurveTo) {
        const CubicPoints own{step.current, step.points[0], step.points[1], step.points[2]};
        return addCurveToCurveIntersections(sink, own, curve, lineWidth, 0, 1);
    }
    CrossingTimes times;
    CrossingTimes curveTimes;
    const int count = curvedIntersection(times, curveTimes,
                                         parameterizeCurve(curve[0], curve[3], curve[1], curve[2]),
                                         parameterizeLine(step.current, step.end()));
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        if (sink.add(times[i])) return true;
    }
    return false;
}

bool crossWithCurve(const BezierPath& path, const CubicPoints& curve, CrossingSink& sink) {
    const Box reach = boxAround(curve.data(), curve.size());
    return visitUntil<SubpathRule::EveryMove>(
        path.elements(), [&](const Box& box) { return doMeet(box, reach); },
        [&](std::size_t, const PathStep& step) {
            return crossStepWithCurve(step, curve, path.lineWidth(), sink);
        });
}

bool crossWithStep(const BezierPath& path, const PathStep& step, CrossingSink& sink) {
    switch (step.type) {
        case PathElementType::MoveTo:
            return false;
        case PathElementType::CurveTo:
            return crossWithCurve(
                path, {step.current, step.points[0], step.points[1], step.points[2]}, sink);
        case PathElementType::LineTo:
        case PathElementType::ClosePath:
            break;
    }
    return crossWithLine(path, step.current, step.end(), sink);
}

bool hasElementIn(const detail::PathElements& elements, const Box& place) {
    return visitUntil<SubpathRule::EveryMove>(
        elements, [&](const Box& box) { return doMeet(box, place); },
        [](std::size_t, const PathStep&) { return true; });
}

/// Crosses a path with each element of another one. Whether the sink has had enough.
bool crossPaths(const BezierPath& path, const BezierPath& other, CrossingSink& sink) {
    // A path without width or height overlaps nothing: `path` is then crossed all
    // the same, `other` is not. Wanted; callers ask with the figure first.
    if (hasArea(path.bounds()) && !overlap(path.bounds(), other.bounds())) return false;
    if (!beginsWithMove(other.elements())) return false;
    return visitUntil<SubpathRule::EveryMove>(
        other.elements(), [&](const Box& box) { return hasElementIn(path.elements(), box); },
        [&](std::size_t, const PathStep& step) { return crossWithStep(path, step, sink); });
}

}  // namespace

void BezierPath::addIntersectionsWithLineStart(Point lineStart, Point lineEnd,
                                               std::vector<float>& toArray) const {
    CrossingSink sink(toArray);
    crossWithLine(*this, lineStart, lineEnd, sink);
}

void BezierPath::addIntersectionsWithCurveTo(const Point* curve,
                                             std::vector<float>& toArray) const {
    CrossingSink sink(toArray);
    crossWithCurve(*this, {curve[0], curve[1], curve[2], curve[3]}, sink);
}

bool BezierPath::intersectionWithLine(Point* point, Point lineStart, Point lineEnd) const {
    return crossWithLine(elements_, lineStart, lineEnd, [&](const Crossing& crossing) {
        if (point != nullptr) {
            *point = pointAt(parameterizeLine(lineStart, lineEnd), crossing.lineTime);
        }
        return true;
    });
}

std::vector<float> BezierPath::intersectionsWithPath(const BezierPath& path) const {
    std::vector<float> positions;
    CrossingSink sink(positions);
    crossPaths(*this, path, sink);
    return positions;
}

bool BezierPath::intersectionWithPath(const BezierPath& path) const {
    CrossingSink sink;
    return crossPaths(*this, path, sink);
}

}  // namespace QZCore
