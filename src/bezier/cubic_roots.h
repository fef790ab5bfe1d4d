// Where a cubic polynomial is 0.
#pragma once

#include <array>

namespace QZCore {

/// a t³ + b t² + c t + d.
struct CubicPolynomial {
    double a;
    double b;
    double c;
    double d;

    [[nodiscard]] double at(double t) const { return ((a * t + b) * t + c) * t + d; }
    [[nodiscard]] double slopeAt(double t) const { return (3 * a * t + 2 * b) * t + c; }
};

struct CubicRoots {
    int count = 0;
    std::array<double, 3> t{};
};

/// The real roots, smallest first; a double root once. A leading coefficient that
/// is nothing beside the others counts as 0. None for a polynomial that is 0, or
/// whose coefficients are not finite.
[[nodiscard]] CubicRoots rootsOf(const CubicPolynomial& polynomial);

}  // namespace QZCore
