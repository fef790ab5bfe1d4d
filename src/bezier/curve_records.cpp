#include "bezier/curve_records.h"

#include "QZCore/geometry/points.h"

namespace QZCore {
namespace {

Point scaled(Point p, double factor) { return {p.x * factor, p.y * factor}; }

}  // namespace

LineRecord parameterizeLine(Point start, Point end) {
    return {start, subtractPointByPoint(end, start)};
}

CurveRecord parameterizeCurve(Point start, Point end, Point controlPoint1, Point controlPoint2) {
    const Point chord = subtractPointByPoint(end, start);
    const Point last = scaled(subtractPointByPoint(end, controlPoint2), 3);
    const Point c = scaled(subtractPointByPoint(controlPoint1, start), 3);
    const Point b = subtractPointByPoint(sumOf(scaled(chord, 3), -2, c), last);
    const Point a = sumOf(sumOf(scaled(chord, -2), 1, c), 1, last);
    return {start, c, b, a};
}

Point pointAt(const LineRecord& line, double u) { return sumOf(line.origin, u, line.direction); }

}  // namespace QZCore
