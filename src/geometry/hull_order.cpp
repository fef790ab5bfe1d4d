#include "geometry/hull_order.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

namespace QZCore {
namespace {

/// Below this many points a comparison sort is as fast.
constexpr std::size_t kFewPoints = 512;

/// As many as this are expected in a bucket.
constexpr std::size_t kPointsPerBucket = 4;

/// `a` before `b`, NaN after all numbers.
bool ascends(double a, double b) { return a < b || (std::isnan(b) && !std::isnan(a)); }

bool precedes(const Point& a, const Point& b) {
    if (ascends(a.x, b.x)) return true;
    if (ascends(b.x, a.x)) return false;
    return ascends(a.y, b.y);
}

/// Divides the numbers from `least` to `greatest` into stretches of equal length.
/// Monotone, so that sorting each bucket sorts all. NaN is in the last one.
class Buckets {
public:
    Buckets(double least, double greatest, std::size_t count)
        : least_(least),
          perUnit_(static_cast<double>(count) / (greatest - least)),
          last_(count - 1) {}

    /// Whether there are any: not without a finite, sensible distance.
    [[nodiscard]] bool areUsable() const {
        return std::isfinite(least_) && std::isfinite(perUnit_) && perUnit_ > 0;
    }
    [[nodiscard]] std::size_t count() const { return last_ + 1; }
    [[nodiscard]] std::size_t of(double x) const {
        const double place = (x - least_) * perUnit_;
        return place < static_cast<double>(last_) ? static_cast<std::size_t>(place) : last_;
    }

private:
    double least_;
    double perUnit_;
    std::size_t last_;
};

Buckets bucketsFor(std::span<const Point> points) {
    double least = std::numeric_limits<double>::infinity();
    double greatest = -std::numeric_limits<double>::infinity();
    for (const Point& point : points) {
        least = point.x < least ? point.x : least;
        greatest = point.x > greatest ? point.x : greatest;
    }
    return {least, greatest, points.size() / kPointsPerBucket};
}

/// Moves every point to the stretch of the array that its bucket has. Returns the
/// ends of the stretches.
std::vector<std::uint32_t> distribute(std::span<Point> points, const Buckets& buckets) {
    std::vector<std::uint32_t> ends(buckets.count() + 1);
    for (const Point& point : points) ++ends[buckets.of(point.x) + 1];
    for (std::size_t i = 1; i < ends.size(); ++i) ends[i] += ends[i - 1];
    const std::vector<Point> copy(points.begin(), points.end());
    for (const Point& point : copy) points[ends[buckets.of(point.x)]++] = point;
    return ends;
}

void sortByBuckets(std::span<Point> points, const Buckets& buckets) {
    const std::vector<std::uint32_t> ends = distribute(points, buckets);
    std::uint32_t start = 0;
    for (std::size_t i = 0; i < buckets.count(); ++i) {
        std::ranges::sort(points.subspan(start, ends[i] - start), precedes);
        start = ends[i];
    }
}

}  // namespace

void sortForHull(std::span<Point> points) {
    if (std::ranges::is_sorted(points, precedes)) return;
    if (points.size() >= kFewPoints) {
        const Buckets buckets = bucketsFor(points);
        if (buckets.areUsable()) return sortByBuckets(points, buckets);
    }
    std::ranges::sort(points, precedes);
}

}  // namespace QZCore
