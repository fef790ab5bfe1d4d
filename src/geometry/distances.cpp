#include "QZCore/geometry/distances.h"

#include <cmath>

#include "QZCore/geometry/rectangles.h"
#include "foundation/single_precision.h"
#include "geometry/containment.h"

namespace QZCore {
namespace {

/// A value between 0 and 1; NaN counts as 0.
float clampedToUnit(float value) { return value > 0 ? (value < 1 ? value : 1) : 0; }

}  // namespace

float distanceBetweenPoints(Point p, Point q) {
    return std::sqrt(distanceSquaredBetweenPoints(p, q));
}

float distanceSquaredBetweenPoints(Point p, Point q) {
    if (p == q) return 0;
    const double dx = p.x - q.x;
    const double dy = p.y - q.y;
    return f32(dx * dx + dy * dy);
}

float distanceBetweenPointAndLine(Point point, Point a, Point b, Point* outDelta) {
    return std::sqrt(distanceSquaredBetweenPointAndLine(point, a, b, outDelta));
}

float distanceSquaredBetweenPointAndLine(Point point, Point a, Point b, Point* outDelta) {
    const Point d{f32(b.x - a.x), f32(b.y - a.y)};
    Point nearest = a;
    if (d != Point{}) {
        const double projection = (point.x - a.x) * d.x + (point.y - a.y) * d.y;
        const float t = clampedToUnit(f32(projection / (d.x * d.x + d.y * d.y)));
        nearest = {a.x + t * d.x, a.y + t * d.y};
    }
    const Point delta{f32(nearest.x - point.x), f32(nearest.y - point.y)};
    if (outDelta != nullptr) *outDelta = delta;
    return f32(delta.x * delta.x + delta.y * delta.y);
}

bool isPointNearLine(Point point, Point a, Point b, float tolerance) {
    if (!contains(outset(rectFromPoints(a, b), tolerance), point)) return false;
    if (a.x == b.x) return std::abs(point.x - a.x) <= tolerance;
    if (a.y == b.y) return std::abs(point.y - a.y) <= tolerance;

    const float slope = f32((a.y - b.y) / (a.x - b.x));
    const float intercept = f32(a.y - a.x * slope);
    const double alongX = std::abs(f32((point.y - intercept) / slope) - point.x);
    const double alongY = std::abs(f32(slope * point.x + intercept) - point.y);
    return std::fmin(alongX, alongY) <= tolerance;
}

}  // namespace QZCore
