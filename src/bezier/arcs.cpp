#include "bezier/arcs.h"

namespace QZCore {
namespace {

/// How long the handles of a quarter circle of radius 1 are: 4/3 (sqrt(2) - 1).
constexpr double kQuarterHandle = 0.5522847498307936;

}  // namespace

void appendQuarterArc(BezierPath& path, Point center, Point spoke) {
    const Point endSpoke{-spoke.y, spoke.x};
    const Point start{center.x + spoke.x, center.y + spoke.y};
    const Point end{center.x + endSpoke.x, center.y + endSpoke.y};
    path.appendBezierPathWithPoints(&start, 1);
    path.curveToPoint(
        end, {start.x + endSpoke.x * kQuarterHandle, start.y + endSpoke.y * kQuarterHandle},
        {end.x + spoke.x * kQuarterHandle, end.y + spoke.y * kQuarterHandle});
}

}  // namespace QZCore
