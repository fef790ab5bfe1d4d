#include "bezier/jagged_line.h"

#include "QZCore/geometry/distances.h"
#include "bezier/element_ends.h"
#include "foundation/single_precision.h"

namespace QZCore {
namespace {

/// Where a jagged line goes on behind the last element of a path. Behind a curve that
/// is its first control point: lines were drawn so, and stay so.
Point firstPointOfLastElement(const detail::PathElements& elements) {
    const std::size_t last = elements.count() - 1;
    return elements.typeAt(last) == PathElementType::ClosePath ? endOfElement(elements, last)
                                                               : *elements.pointsAt(last);
}

}  // namespace

void writeTeeth(Point from, Point to, std::uint32_t teeth, double width, Point* out) {
    const Point d{f32(to.x - from.x), f32(to.y - from.y)};
    const float length = distanceBetweenPoints({}, d);
    const Point step{f32(d.x / teeth), f32(d.y / teeth)};
    const Point half{step.x * 0.5, step.y * 0.5};
    const Point displacement =
        length == 0 ? Point() : Point{width * d.y / length, width * d.x / length};
    Point base = from;
    for (std::uint32_t i = 0; i < teeth; ++i) {
        *out++ = {base.x + displacement.x + half.x, base.y + displacement.y + half.y};
        base = {base.x + step.x, base.y + step.y};
        *out++ = base;
    }
}

void joc_jaggedLineToPoint(BezierPath& path, Point point, std::uint32_t teeth, double width,
                           std::span<Point> buffer) {
    if (path.isEmpty() || buffer.size() / 2 < teeth) return;
    writeTeeth(firstPointOfLastElement(path.elements()), point, teeth, width, buffer.data());
    path.appendBezierPathWithPoints(buffer.data(), std::size_t{teeth} * 2);
}

}  // namespace QZCore
