#include "bezier/path_measures.h"

#include "QZCore/bezier/cubics.h"
#include "QZCore/geometry/distances.h"

namespace QZCore {

float lengthOfElement(const PathStep& step, float maxError) {
    switch (step.type) {
        case PathElementType::MoveTo:
            return 0;
        case PathElementType::LineTo:
        case PathElementType::ClosePath:
            return distanceBetweenPoints(step.current, step.end());
        case PathElementType::CurveTo:
            break;
    }
    const Point segment[] = {step.current, step.points[0], step.points[1], step.points[2]};
    return lengthOfBezier(segment, maxError);
}

detail::PathMeasures detail::measuresOf(const PathElements& elements) {
    PathMeasures measures;
    measures.totals.reserve(elements.count());
    float total = 0;
    for (const PathStep& step : PathSteps(elements)) {
        if (step.type == PathElementType::MoveTo) {
            measures.moves.push_back(static_cast<std::uint32_t>(measures.totals.size()));
        }
        total += lengthOfElement(step, kMeasuringError);
        measures.totals.push_back(total);
    }
    return measures;
}

}  // namespace QZCore
