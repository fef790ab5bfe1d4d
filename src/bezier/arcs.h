// Arcs as cubic curves.
#pragma once

#include "QZCore/bezier/bezier_path.h"

namespace QZCore {

/// The point in the direction of the angle at the distance 1 from (0, 0).
[[nodiscard]] Point directionAt(double angle);

/// A quarter of an ellipse, from the end of one half axis to that of the other.
struct QuarterArc {
    Point center;
    /// The half axis to the start.
    Point startSpoke;
    /// The half axis to the end.
    Point endSpoke;

    [[nodiscard]] Point start() const { return {center.x + startSpoke.x, center.y + startSpoke.y}; }
    [[nodiscard]] Point end() const { return {center.x + endSpoke.x, center.y + endSpoke.y}; }
};

/// Appends the arc as one curve; the path is at its start.
void continueWithQuarterArc(BezierPath& path, const QuarterArc& arc);

/// The same after a line to its start; a move-to when the path is empty.
void appendQuarterArc(BezierPath& path, const QuarterArc& arc);

}  // namespace QZCore
