#include "QZCore/bezier/bezier_path.h"
#include "QZCore/geometry/distances.h"
#include "QZCore/geometry/sentinels.h"
#include "bezier/element_ends.h"
#include "bezier/flattening.h"
#include "bezier/path_boxes.h"
#include "foundation/single_precision.h"

namespace QZCore {
namespace {

constexpr SubpathRule kRule = SubpathRule::EveryMove;

/// The shortest way that was found, in single precision.
struct Way {
    float distance = f32(QZHugePoint.x);
    Point delta = QZHugePoint;
};

/// Whether a way to something in the box may be shorter.
bool mayBeShorter(const Box& box, Point from, const Way& shortest) {
    constexpr double kRounding = 1e-6;
    const double distance = shortest.distance;
    return squaredDistance(box, from) * (1 - kRounding) < distance * distance;
}

void measureToLines(const PathStep& step, Point from, Way& shortest) {
    Point start = step.current;
    visitFlatEnds(step, [&](Point end) {
        const Point line[] = {start, end};
        start = end;
        if (!mayBeShorter(boxAround(line, 2), from, shortest)) return;
        Point delta;
        const float distance = distanceBetweenPointAndLine(from, line[0], line[1], &delta);
        if (distance < shortest.distance) shortest = {distance, delta};
    });
}

/// Measures to all lines and curves, not to what closes subpaths.
void measureToPath(const detail::PathElements& elements, Point from, Way& shortest) {
    visitUntil<kRule>(
        elements, [&](const Box& box) { return mayBeShorter(box, from, shortest); },
        [&](std::size_t, const PathStep& step) {
            const bool isDrawn =
                step.type == PathElementType::LineTo || step.type == PathElementType::CurveTo;
            if (isDrawn) measureToLines(step, from, shortest);
            return false;
        });
}

}  // namespace

double BezierPath::distanceFromPath(const BezierPath& path, Point* resultingOffset) const {
    Way shortest;
    if (intersectionWithPath(path)) {
        shortest = {0, {}};
    } else if (beginsWithMove(elements_) && beginsWithMove(path.elements_)) {
        for (const PathStep& step : PathSteps(elements_)) {
            if (step.type == PathElementType::ClosePath) continue;
            visitFlatEnds(step, [&](Point v) { measureToPath(path.elements(), v, shortest); });
        }
    }
    if (resultingOffset != nullptr) *resultingOffset = shortest.delta;
    return shortest.distance;
}

}  // namespace QZCore
