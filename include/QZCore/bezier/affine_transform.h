// Affine transforms of the plane.
#pragma once

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

/// Maps (x, y) to (a x + c y + tx, b x + d y + ty). The identity unless made
/// otherwise. The changing operations put their step in front: what was there
/// before is applied after it.
struct QZ_EXPORT AffineTransform {
    /// What x adds to x.
    double a = 1;
    /// What x adds to y.
    double b = 0;
    /// What y adds to x.
    double c = 0;
    /// What y adds to y.
    double d = 1;
    /// The offset of x.
    double tx = 0;
    /// The offset of y.
    double ty = 0;

    /// Moves by (x, y) first.
    void translate(double x, double y);
    /// Rotates by `angle` (radians, from +x towards +y) first.
    void rotate(double angle);
    /// Scales about the origin first.
    void scale(double x, double y);

    /// Where the point goes.
    [[nodiscard]] Point transformed(Point point) const;

    /// Exact comparison of all six numbers.
    friend constexpr bool operator==(const AffineTransform&, const AffineTransform&) = default;
};

}  // namespace QZCore
