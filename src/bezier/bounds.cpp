#include <limits>

#include "bezier/cubic_turns.h"
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

/// Includes where a curve, whose ends are included, turns back along one axis.
void includeTurns(Extent& extent, const CubicCoordinate& curve) {
    if (extent.contains(curve.p1) && extent.contains(curve.p2)) return;
    for (const double t : curve.turns()) {
        if (t > 0 && t < 1) extent.include(curve.at(t));
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
        includeTurns(x, {current.x, step.points[0].x, step.points[1].x, end.x});
        includeTurns(y, {current.y, step.points[0].y, step.points[1].y, end.y});
    }
    return {{x.start(), y.start()}, {x.length(), y.length()}};
}

}  // namespace QZCore
