// Random points and rectangles, the same on every run and with every library.
#pragma once

#include <cstdint>

#include "QZCore/geometry/plane.h"

namespace QZCore::testing {

/// Makes numbers by the SplitMix64 generator.
class RandomPlane {
public:
    explicit RandomPlane(std::uint64_t seed) : state_(seed) {}

    [[nodiscard]] std::uint64_t bits() {
        std::uint64_t z = state_ += 0x9E3779B97F4A7C15;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
        return z ^ (z >> 31);
    }

    /// A whole number from 0 to below `count`.
    [[nodiscard]] int below(int count) {
        return static_cast<int>(bits() % static_cast<std::uint64_t>(count));
    }

    /// A number from `low` to below `high`, of 53 random bits.
    [[nodiscard]] double number(double low, double high) {
        return low + static_cast<double>(bits() >> 11) * 0x1p-53 * (high - low);
    }

    [[nodiscard]] Point point(double reach) {
        const double x = number(-reach, reach);
        return {x, number(-reach, reach)};
    }

    /// A rectangle whose origin is within `reach` of 0, its extents up to `largest`.
    [[nodiscard]] Rect rect(double reach, double largest) {
        const Point origin = point(reach);
        const double width = number(0, largest);
        return {origin, {width, number(0, largest)}};
    }

private:
    std::uint64_t state_;
};

}  // namespace QZCore::testing
