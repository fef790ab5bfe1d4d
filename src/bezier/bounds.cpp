#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "bezier/path_bounds.h"
#include "bezier/path_steps.h"

namespace QZCore {
namespace {

/// The stretch along one axis that has been seen. NaN does not count.
class Extent {
public:
    void include(double value) {
        low_ = value < low_ ? value : low_;
        high_ = value > high_ ? value : high_;
    }
    [[nodiscard]] bool contains(double value) const { return low_ <= value && value <= high_; }
    [[nodiscard]] double start() const { return low_ <= high_ ? low_ : 0; }
    [[nodiscard]] double length() const { return low_ <= high_ ? high_ - low_ : 0; }

private:
    double low_ = std::numeric_limits<double>::infinity();
    double high_ = -std::numeric_limits<double>::infinity();
};

double valueAt(double p0, double p1, double p2, double p3, double t) {
    const double s = 1 - t;
    return s * s * (s * p0 + 3 * t * p1) + t * t * (3 * s * p2 + t * p3);
}

/// Includes where a curve, whose ends are included, turns back along one axis:
/// where a t² + b t + c, a third of its derivative, is 0.
void includeTurns(Extent& extent, double p0, double p1, double p2, double p3) {
    if (extent.contains(p1) && extent.contains(p2)) return;
    const double c = p1 - p0;
    const double b = 2 * (p2 - p1 - c);
    const double a = (p3 - p2) - 2 * (p2 - p1) + c;
    const double discriminant = b * b - 4 * a * c;
    if (!(discriminant >= 0)) return;
    // The larger root of the two by magnitude, and the other from their product:
    // no cancellation, and the right root where a is nothing beside b.
    const double q = -0.5 * (b + std::copysign(std::sqrt(discriminant), b));
    for (const double t : {q / a, c / q}) {
        if (t > 0 && t < 1) extent.include(valueAt(p0, p1, p2, p3, t));
    }
}

}  // namespace

Rect boundsOf(const detail::PathElements& elements) {
    Extent x;
    Extent y;
    for (const PathStep& step : PathSteps(elements)) {
        const Point end = step.end();
        x.include(end.x);
        y.include(end.y);
        if (step.type == PathElementType::MoveTo) continue;
        const Point& current = step.current;
        x.include(current.x);
        y.include(current.y);
        if (step.type != PathElementType::CurveTo) continue;
        includeTurns(x, current.x, step.points[0].x, step.points[1].x, end.x);
        includeTurns(y, current.y, step.points[0].y, step.points[1].y, end.y);
    }
    return {{x.start(), y.start()}, {x.length(), y.length()}};
}

}  // namespace QZCore
