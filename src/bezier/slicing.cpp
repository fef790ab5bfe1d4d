#include "QZCore/bezier/bezier_path.h"
#include "QZCore/bezier/cubics.h"
#include "bezier/element_ends.h"
#include "bezier/path_measures.h"
#include "bezier/trimming.h"

namespace QZCore {
namespace {

/// Appends what the cut leaves over of its element.
void appendRest(BezierPath& path, const PathStep& step, const PathPiece& cutOff) {
    const bool isCurve = step.type == PathElementType::CurveTo;
    path.moveToPoint(cutOff.points[isCurve ? 2 : 0]);
    if (!isCurve) return path.lineToPoint(step.end());
    const Point segment[] = {step.current, step.points[0], step.points[1], step.points[2]};
    Point rest[4];
    subdivideBezierAtT(segment, nullptr, rest, static_cast<float>(cutOff.t));
    path.curveToPoint(rest[3], rest[1], rest[2]);
}

}  // namespace

BezierPath BezierPath::bezierPathFromLength(float length, float toLength) const {
    BezierPath trimmed = bezierPathByTrimmingToLength(toLength);
    if (!(length > 0)) return trimmed;
    BezierPath rest = trimmed;
    rest.removeAllPoints();
    const auto cut = cutAtLength(trimmed.elements_, length, kMeasuringError);
    if (!cut) return rest;

    appendRest(rest, stepAt(trimmed.elements_, cut->index), cut->piece);
    bool isCutSubpath = true;
    std::size_t index = 0;
    for (const PathStep& step : PathSteps(trimmed.elements_)) {
        if (index++ <= cut->index) continue;
        if (step.type == PathElementType::MoveTo) isCutSubpath = false;
        if (isCutSubpath && step.type == PathElementType::ClosePath) {
            rest.lineToPoint(step.end());
        } else {
            rest.elements_.append(step.type, step.points);
        }
    }
    return rest;
}

}  // namespace QZCore
