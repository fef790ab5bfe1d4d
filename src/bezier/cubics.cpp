#include "QZCore/bezier/cubics.h"

#include <cmath>

#include "foundation/single_precision.h"

namespace QZCore {
namespace {

/// The point at `t` of the way from `a` to `b`.
Point between(Point a, Point b, double t) {
    return {(1 - t) * a.x + t * b.x, (1 - t) * a.y + t * b.y};
}

void write(Point* out, Point p0, Point p1, Point p2, Point p3) {
    if (out == nullptr) return;
    out[0] = p0;
    out[1] = p1;
    out[2] = p2;
    out[3] = p3;
}

}  // namespace

void subdivideBezierAtT(const Point* segment, Point* left, Point* right, float t) {
    const Point start = segment[0];
    const Point end = segment[3];
    const Point a = between(start, segment[1], t);
    const Point b = between(segment[1], segment[2], t);
    const Point c = between(segment[2], end, t);
    const Point d = between(a, b, t);
    const Point e = between(b, c, t);
    const Point f = between(d, e, t);
    write(left, start, a, d, f);
    write(right, f, e, c, end);
}

void splitBezierCurveTo(const Point* segment, Point* left, Point* right) {
    subdivideBezierAtT(segment, left, right, 0.5F);
}

float Slope(Point a, Point b) { return std::atan2(f32(b.y - a.y), f32(b.x - a.x)); }

}  // namespace QZCore
