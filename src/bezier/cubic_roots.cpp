#include "bezier/cubic_roots.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace QZCore {
namespace {

// A discriminant this small counts as 0, for coefficients of which the largest is 1.
constexpr double kNoDiscriminant = 1e-10;
// A leading coefficient this small is what rounding left of a curve of a lower
// degree. Solving for it would lose the roots that matter; what little it moves
// them is made up for by polishing.
constexpr double kNoCoefficient = 1e-6;
constexpr int kPolishingSteps = 4;

CubicRoots rootsAre(std::initializer_list<double> values) {
    CubicRoots roots;
    for (const double value : values) roots.t[static_cast<std::size_t>(roots.count++)] = value;
    return roots;
}

CubicRoots rootsOfLine(double c, double d) {
    if (std::abs(c) <= kNoCoefficient * std::abs(d)) return {};
    return rootsAre({-d / c});
}

CubicRoots rootsOfQuadratic(double b, double c, double d) {
    if (std::abs(b) <= kNoCoefficient * std::max(std::abs(c), std::abs(d))) {
        return rootsOfLine(c, d);
    }
    const double discriminant = c * c - 4 * b * d;
    if (std::abs(discriminant) < kNoDiscriminant) return rootsAre({-c / (2 * b)});
    if (discriminant < 0) return {};
    // The larger root by magnitude, and the other from their product, so that
    // nothing cancels.
    const double q = -0.5 * (c + std::copysign(std::sqrt(discriminant), c));
    return rootsAre({q / b, d / q});
}

/// The roots of t³ + b t² + c t + d by Cardano's formula.
CubicRoots rootsOfMonic(double b, double c, double d) {
    const double shift = b / 3;
    const double p = (c - b * shift) / 3;
    const double q = (2 * shift * shift * shift - shift * c + d) / 2;
    const double discriminant = q * q + p * p * p;
    if (std::abs(discriminant) < kNoDiscriminant) {
        const double u = std::cbrt(-q);
        return u == 0 ? rootsAre({-shift}) : rootsAre({2 * u - shift, -u - shift});
    }
    if (discriminant > 0) {
        const double u = std::cbrt(-q - std::copysign(std::sqrt(discriminant), q));
        return rootsAre({u - p / u - shift});
    }
    const double radius = 2 * std::sqrt(-p);
    const double angle = std::acos(std::clamp(-q / std::sqrt(-p * p * p), -1.0, 1.0)) / 3;
    constexpr double kStep = std::numbers::pi / 3;
    return rootsAre({radius * std::cos(angle) - shift, -radius * std::cos(angle + kStep) - shift,
                     -radius * std::cos(angle - kStep) - shift});
}

CubicRoots estimatedRoots(const CubicPolynomial& f) {
    const double others = std::max({std::abs(f.b), std::abs(f.c), std::abs(f.d)});
    if (std::abs(f.a) <= kNoCoefficient * others) return rootsOfQuadratic(f.b, f.c, f.d);
    return rootsOfMonic(f.b / f.a, f.c / f.a, f.d / f.a);
}

/// Newton steps, as long as they lead closer to 0.
double polished(const CubicPolynomial& f, double t) {
    double value = f.at(t);
    for (int step = 0; step < kPolishingSteps && value != 0; ++step) {
        const double next = t - value / f.slopeAt(t);
        const double nextValue = f.at(next);
        if (!(std::abs(nextValue) < std::abs(value))) break;
        t = next;
        value = nextValue;
    }
    return t;
}

void insertInOrder(CubicRoots& roots, double root) {
    auto place = static_cast<std::size_t>(roots.count++);
    for (; place > 0 && roots.t[place - 1] > root; --place) roots.t[place] = roots.t[place - 1];
    roots.t[place] = root;
}

}  // namespace

CubicRoots rootsOf(const CubicPolynomial& polynomial) {
    const auto& [a, b, c, d] = polynomial;
    const double largest = std::max({std::abs(a), std::abs(b), std::abs(c), std::abs(d)});
    if (!(largest > 0 && std::isfinite(a + b + c + d))) return {};
    const CubicPolynomial scaled{a / largest, b / largest, c / largest, d / largest};
    const CubicRoots estimates = estimatedRoots(scaled);
    CubicRoots roots;
    for (int i = 0; i < estimates.count; ++i) {
        insertInOrder(roots, polished(scaled, estimates.t[static_cast<std::size_t>(i)]));
    }
    return roots;
}

}  // namespace QZCore
