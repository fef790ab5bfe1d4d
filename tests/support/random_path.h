// Random paths, the same on every run.
#pragma once

#include "QZCore/bezier/bezier_path.h"
#include "support/random_plane.h"

namespace QZCore::testing {

/// Appends an element of any type. Some points repeat, some lie on whole numbers.
inline void appendRandomElement(BezierPath& path, RandomPlane& random) {
    const auto point = [&] {
        const int kind = random.below(8);
        if (kind == 0) return path.currentPoint();
        const double x = kind < 4 ? random.below(5) * 10 : random.number(-100, 100);
        return Point{x, kind < 4 ? random.below(5) * 10 : random.number(-100, 100)};
    };
    const int kind = random.below(10);
    if (kind == 0) path.moveToPoint(point());
    if (kind == 1) path.closePath();
    if (kind >= 2 && kind < 6) path.lineToPoint(point());
    if (kind >= 6) {
        const Point control1 = point();
        const Point control2 = point();
        path.curveToPoint(point(), control1, control2);
    }
}

/// A path of `count` elements, most of which begin with a move-to.
inline BezierPath randomPath(RandomPlane& random, int count) {
    BezierPath path;
    if (count > 0 && random.below(8) != 0) path.moveToPoint(random.point(100));
    while (static_cast<int>(path.elementCount()) < count) appendRandomElement(path, random);
    return path;
}

}  // namespace QZCore::testing
