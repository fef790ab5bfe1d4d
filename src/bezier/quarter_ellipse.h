// A quarter of an ellipse, and teeth on it.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "QZCore/geometry/plane.h"

namespace QZCore {

/// The arc about (0, 0) from (a, 0) to (0, b), measured by chords. Both half axes are
/// above 0.
class QuarterEllipse {
public:
    QuarterEllipse(double a, double b);

    [[nodiscard]] double length() const { return totals_.back(); }

    /// Teeth that stand on the arc at even distances and point outwards: bases and tips
    /// in turn, from the base at the start to that at the end.
    [[nodiscard]] std::vector<Point> teeth(std::uint32_t count, double depth) const;

private:
    static constexpr std::size_t kChords = 64;

    [[nodiscard]] Point pointAt(Point direction) const;
    [[nodiscard]] Point pointOver(Point direction, double depth) const;
    [[nodiscard]] Point directionBehind(double length) const;

    double a_;
    double b_;
    std::array<double, kChords + 1> totals_{};
};

}  // namespace QZCore
