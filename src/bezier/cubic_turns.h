// Where a cubic curve turns back along an axis.
#pragma once

#include <array>
#include <cmath>

namespace QZCore {

/// One coordinate of a cubic curve.
struct CubicCoordinate {
    double p0;
    double p1;
    double p2;
    double p3;

    [[nodiscard]] double at(double t) const {
        const double s = 1 - t;
        return s * s * (s * p0 + 3 * t * p1) + t * t * (3 * s * p2 + t * p3);
    }

    /// Where the derivative is 0, of which a third is a t² + b t + c, in either order;
    /// NaN or infinity where it is not.
    [[nodiscard]] std::array<double, 2> turns() const {
        const double c = p1 - p0;
        const double b = 2 * (p2 - p1 - c);
        const double a = (p3 - p2) - 2 * (p2 - p1) + c;
        const double discriminant = b * b - 4 * a * c;
        // The larger root of the two by magnitude, and the other from their product:
        // no cancellation, and the right root where a is nothing beside b.
        const double q = -0.5 * (b + std::copysign(std::sqrt(discriminant), b));
        return {q / a, c / q};
    }
};

}  // namespace QZCore
