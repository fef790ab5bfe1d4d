#include "QZCore/bezier/curve_fitting.h"

#include "QZCore/bezier/cubics.h"
#include "bezier/fitted_cubics.h"
#include "bezier/path_steps.h"

namespace QZCore {
namespace {

constexpr std::size_t kFewestElements = 3;

/// The first point of each element; for a close-path the start of its subpath.
std::vector<Point> firstPointsOf(const BezierPath& path) {
    std::vector<Point> points;
    points.reserve(path.elementCount());
    for (const PathStep& step : PathSteps(path.elements())) {
        const bool closes = step.type == PathElementType::ClosePath;
        points.push_back(closes ? step.subpathStart : step.points[0]);
    }
    return points;
}

}  // namespace

BezierPath curveFitPath(const BezierPath& path, float error) {
    if (path.elementCount() < kFewestElements) return path;
    const std::vector<Point> cubics = fittedCubics(firstPointsOf(path), error);
    BezierPath fitted;
    if (!cubics.empty()) fitted.moveToPoint(cubics[0]);
    for (std::size_t i = 0; i < cubics.size(); i += 4) {
        fitted.curveToPoint(cubics[i + 3], cubics[i + 1], cubics[i + 2]);
    }
    return fitted;
}

void appendBezierPathRemovingInitialMoveToPoint(BezierPath& destination, const BezierPath& source) {
    const BezierPath appended = source;  // which may be the destination
    bool isFirst = true;
    for (const auto& [type, p, current, start] : PathSteps(appended.elements())) {
        const bool isLeftOut = isFirst && type == PathElementType::MoveTo;
        isFirst = false;
        if (isLeftOut) continue;
        switch (type) {
            case PathElementType::MoveTo:
                destination.moveToPoint(p[0]);
                break;
            case PathElementType::LineTo:
                destination.lineToPoint(p[0]);
                break;
            case PathElementType::CurveTo:
                destination.curveToPoint(p[2], p[0], p[1]);
                break;
            case PathElementType::ClosePath:
                destination.closePath();
                break;
        }
    }
}

float AngleBetween(Point a, Point b, Point c) { return Slope(a, b) - Slope(b, c); }

}  // namespace QZCore
