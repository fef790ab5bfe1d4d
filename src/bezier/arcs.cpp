#include "bezier/arcs.h"

#include <cmath>

namespace QZCore {
namespace {

/// How long the handles of a quarter circle of radius 1 are: 4/3 (sqrt(2) - 1).
constexpr double kQuarterHandle = 0.5522847498307936;

/// The point moved by a handle's share of `spoke`.
Point handle(Point point, Point spoke) {
    return {point.x + spoke.x * kQuarterHandle, point.y + spoke.y * kQuarterHandle};
}

}  // namespace

Point directionAt(double angle) { return {std::cos(angle), std::sin(angle)}; }

void continueWithQuarterArc(BezierPath& path, const QuarterArc& arc) {
    path.curveToPoint(arc.end(), handle(arc.start(), arc.endSpoke),
                      handle(arc.end(), arc.startSpoke));
}

void appendQuarterArc(BezierPath& path, const QuarterArc& arc) {
    const Point start = arc.start();
    path.appendBezierPathWithPoints(&start, 1);
    continueWithQuarterArc(path, arc);
}

}  // namespace QZCore
