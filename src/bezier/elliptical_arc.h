// Arcs of ellipses between two points.
#pragma once

#include "QZCore/bezier/bezier_path.h"

namespace QZCore {

/// One of the four arcs of a rotated ellipse that go from one point to another.
struct EllipticalArc {
    Point start;
    Point end;
    /// The half axes. Their signs do not count, and both grow by one factor when they
    /// do not reach from the start to the end.
    double radiusX = 0;
    double radiusY = 0;
    /// The angle from +x to the first axis, in degrees.
    double rotation = 0;
    /// Whether it is more than half of the ellipse.
    bool isLarge = false;
    /// Whether its angles grow.
    bool isGrowing = false;
};

/// Appends the arc as up to four curves. It is nothing when both ends are the same, and
/// a line when a radius is 0 or the numbers are beyond the doubles.
void appendEllipticalArc(BezierPath& path, const EllipticalArc& arc);

}  // namespace QZCore
