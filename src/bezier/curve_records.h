// Lines and cubic curves by the coefficients of their parameter.
#pragma once

#include "QZCore/geometry/plane.h"

namespace QZCore {

/// p + factor q.
[[nodiscard]] inline Point sumOf(Point p, double factor, Point q) {
    return {p.x + factor * q.x, p.y + factor * q.y};
}

/// L(u) = origin + u direction, at its ends for u = 0 and 1.
struct LineRecord {
    Point origin;
    Point direction;
};

/// B(t) = start + c t + b t² + a t³, at its ends for t = 0 and 1.
struct CurveRecord {
    Point start;
    Point c;
    Point b;
    Point a;
};

[[nodiscard]] LineRecord parameterizeLine(Point start, Point end);
[[nodiscard]] CurveRecord parameterizeCurve(Point start, Point end, Point controlPoint1,
                                            Point controlPoint2);

[[nodiscard]] Point pointAt(const LineRecord& line, double u);
[[nodiscard]] inline Point pointAt(const CurveRecord& curve, double t) {
    return {((curve.a.x * t + curve.b.x) * t + curve.c.x) * t + curve.start.x,
            ((curve.a.y * t + curve.b.y) * t + curve.c.y) * t + curve.start.y};
}

[[nodiscard]] inline double dotProduct(Point a, Point b) { return a.x * b.x + a.y * b.y; }
[[nodiscard]] inline double crossProduct(Point a, Point b) { return a.x * b.y - a.y * b.x; }

}  // namespace QZCore
