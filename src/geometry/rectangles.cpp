#include "QZCore/geometry/rectangles.h"

#include <algorithm>
#include <cmath>

#include "QZCore/geometry/points.h"
#include "QZCore/geometry/sizes.h"
#include "foundation/single_precision.h"
#include "geometry/containment.h"

namespace QZCore {
namespace {

/// A stretch along one axis.
struct Stretch {
    double start;
    double length;
};

/// The stretch with both ends on half units.
Stretch nonIntegralStretch(double start, double length) {
    const double newStart = std::floor(f32(start)) + 0.5;
    const double newEnd = std::floor(f32(length + newStart)) + 0.5;
    return {newStart, newEnd - newStart};
}

/// The gap between two stretches, 0 when they meet.
double gap(Stretch a, Stretch b) {
    const double aEnd = a.start + a.length;
    const double bEnd = b.start + b.length;
    if (a.start > bEnd) return a.start - bEnd;
    return aEnd < b.start ? b.start - aEnd : 0;
}

Stretch across(Rect rect) { return {rect.origin.x, rect.size.width}; }
Stretch down(Rect rect) { return {rect.origin.y, rect.size.height}; }

}  // namespace

Rect rectFromPoints(Point a, Point b) {
    return {{std::min(a.x, b.x), std::min(a.y, b.y)}, {std::abs(b.x - a.x), std::abs(b.y - a.y)}};
}

Rect rectFromSize(Size size) { return {{}, size}; }

Rect rectFromOriginSize(Point origin, Size size) { return {origin, size}; }

Rect integralRect(Rect rect) {
    return {{std::floor(rect.origin.x), std::floor(rect.origin.y)}, ceilSize(rect.size)};
}

Rect nonIntegralRect(Rect rect) {
    const Stretch x = nonIntegralStretch(rect.origin.x, rect.size.width);
    const Stretch y = nonIntegralStretch(rect.origin.y, rect.size.height);
    return {{x.start, y.start}, {x.length, y.length}};
}

float distanceBetweenRectangles(Rect r1, Rect r2) {
    if (overlap(r1, r2)) return 0;
    const double dx = gap(across(r1), across(r2));
    const double dy = gap(down(r1), down(r2));
    return std::sqrt(f32(dx * dx + dy * dy));
}

}  // namespace QZCore
