#include <cmath>

#include "QZCore/bezier/bezier_path.h"
#include "foundation/single_precision.h"

namespace QZCore {
namespace {

double halfUnit(double value) { return std::floor(f32(value)) + 0.5; }

/// Moves a coordinate that both points share to a half unit.
void snap(double& p, double& q) {
    if (p != q) return;
    p = halfUnit(p);
    q = p;
}

}  // namespace

void BezierPath::makeSureAllControlPointsAreNonIntegral() {
    if (isEmpty()) return;
    Point* points = elements_.changeablePoints();
    const std::uint32_t* words = elements_.words();
    for (std::size_t i = 0; i + 1 < elementCount(); ++i) {
        const std::uint32_t pointCount = detail::pointCountOf(elements_.typeAt(i));
        if (pointCount == 0) continue;
        // A closing line runs back to the first element, whatever its subpath.
        const bool closes = elements_.typeAt(i + 1) == PathElementType::ClosePath;
        const std::size_t next = closes ? 0 : i + 1;
        if (elements_.typeAt(next) == PathElementType::ClosePath) continue;

        Point& p = points[detail::PathElements::firstPointOf(words[i]) + pointCount - 1];
        Point& q = points[detail::PathElements::firstPointOf(words[next])];
        snap(p.y, q.y);
        snap(p.x, q.x);
    }
}

}  // namespace QZCore
