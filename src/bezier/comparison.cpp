#include <algorithm>
#include <bit>
#include <cmath>

#include "QZCore/bezier/bezier_path.h"
#include "bezier/path_steps.h"
#include "foundation/single_precision.h"

namespace QZCore {
namespace {

/// The leading decimal digit of the point's magnitude, in three bits: 8 and 9 read
/// as 0 and 1. Part of stored hashes.
std::uint32_t digit(Point point) {
    const double magnitude = f32(std::abs(point.x) + std::abs(point.y));
    if (magnitude == 0 || !std::isfinite(magnitude)) return 0;
    const double leading = magnitude / std::pow(10, std::floor(std::log10(magnitude)));
    return static_cast<std::uint32_t>(leading) & 7;
}

std::uint32_t mixedIn(std::uint32_t hash, const PathStep& step) {
    switch (step.type) {
        case PathElementType::MoveTo:
            return std::rotl(hash, 5) ^ digit(step.points[0]);
        case PathElementType::LineTo:
            return std::rotl(hash, 5) ^ digit(step.points[0]) ^ 8;
        case PathElementType::CurveTo:
            hash = std::rotl(hash, 5) ^ digit(step.points[0]);
            hash = std::rotl(hash, 3) ^ digit(step.points[1]);
            return std::rotl(hash, 3) ^ digit(step.points[2]) ^ 0x400;
        case PathElementType::ClosePath:
            break;
    }
    return std::rotl(hash, 2) ^ 3;
}

}  // namespace

bool BezierPath::isIdentical(const BezierPath& other) const {
    return elements_.isIdentical(other.elements_);
}

bool BezierPath::isEqual(const BezierPath& other) const {
    if (isIdentical(other)) return true;
    // Equal words have equal types and so the same number of points.
    const auto count = elements_.count();
    const auto pointCount = elements_.pointCount();
    return count == other.elements_.count() && pointCount == other.elements_.pointCount() &&
           std::equal(elements_.words(), elements_.words() + count, other.elements_.words()) &&
           std::equal(elements_.points(), elements_.points() + pointCount,
                      other.elements_.points());
}

std::uint32_t BezierPath::hash() const {
    std::uint32_t hash = 0;
    for (const PathStep& step : PathSteps(elements_)) hash = mixedIn(hash, step);
    return hash;
}

}  // namespace QZCore
