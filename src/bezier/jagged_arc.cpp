#include "bezier/jagged_arc.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace QZCore {
namespace {

/// The sum of both spokes, each times its number.
Point combined(const QuarterArc& arc, double start, double end) {
    return {start * arc.startSpoke.x + end * arc.endSpoke.x,
            start * arc.startSpoke.y + end * arc.endSpoke.y};
}

Point pointAt(const QuarterArc& arc, double angle) {
    const Point spoke = combined(arc, std::cos(angle), std::sin(angle));
    return {arc.center.x + spoke.x, arc.center.y + spoke.y};
}

/// The point at `depth` outside of the arc, straight over the one at `angle`.
Point pointOver(const QuarterArc& arc, double angle, double depth) {
    const Point point = pointAt(arc, angle);
    const Point along = combined(arc, -std::sin(angle), std::cos(angle));
    const Point across = combined(arc, std::cos(angle), std::sin(angle));
    // Of the two normals the one that goes on from the centre.
    const double side = across.y * along.x - across.x * along.y > 0 ? 1 : -1;
    const double scale = side * depth / std::hypot(along.x, along.y);
    return {point.x - along.y * scale, point.y + along.x * scale};
}

/// The way along an arc, measured by chords.
class Way {
public:
    explicit Way(const QuarterArc& arc) {
        Point before = arc.start();
        for (std::size_t i = 1; i <= kChords; ++i) {
            const Point point = pointAt(arc, angleOf(static_cast<double>(i)));
            totals_[i] = totals_[i - 1] + std::hypot(point.x - before.x, point.y - before.y);
            before = point;
        }
    }

    [[nodiscard]] double length() const { return totals_.back(); }

    /// The angle behind a share of the length, from 0 to 1.
    [[nodiscard]] double angleAt(double share) const {
        const double length = share * totals_.back();
        const auto next = std::upper_bound(totals_.begin() + 1, totals_.end() - 1, length);
        const double before = *(next - 1);
        const auto chords = static_cast<double>(next - 1 - totals_.begin());
        return angleOf(chords + (length - before) / (*next - before));
    }

private:
    static constexpr std::size_t kChords = 64;

    static double angleOf(double chords) { return chords / kChords * (std::numbers::pi / 2); }

    std::array<double, kChords + 1> totals_{};
};

}  // namespace

double lengthOf(const QuarterArc& arc) { return Way(arc).length(); }

void appendTeethOnArc(BezierPath& path, const QuarterArc& arc, std::uint32_t teeth, double depth) {
    const Way way(arc);
    for (std::uint32_t i = 0; i < teeth; ++i) {
        path.lineToPoint(pointOver(arc, way.angleAt((i + 0.5) / teeth), depth));
        const bool isLast = i + 1 == teeth;
        path.lineToPoint(isLast ? arc.end() : pointAt(arc, way.angleAt((i + 1.0) / teeth)));
    }
}

}  // namespace QZCore
