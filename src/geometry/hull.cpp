#include "QZCore/geometry/hull.h"

#include <cstdlib>
#include <span>

#include "geometry/hull_order.h"

namespace QZCore {
namespace {

/// Twice the area of the triangle a, b, c, signed: less than 0 when the way turns
/// right at b, as seen with y pointing down.
double signedArea(Point a, Point b, Point c) {
    return (a.x - b.x) * (c.y - b.y) - (a.y - b.y) * (c.x - b.x);
}

/// A chain of indices of points that only turns left.
class Chain {
public:
    /// A chain of the two points, in a storage that they need not share.
    Chain(const Point* points, std::int32_t* storage, std::int32_t first, std::int32_t second)
        : points_(points), first_(storage), last_(storage + 1) {
        first_[0] = first;
        first_[1] = second;
    }

    /// Appends a point, after dropping those at which the way to it does not turn
    /// left: also the ones on a straight line, repeated ones and NaN.
    void append(std::int32_t index) {
        while (last_ > first_ &&
               !(signedArea(points_[last_[-1]], points_[*last_], points_[index]) > 0)) {
            --last_;
        }
        *++last_ = index;
    }

    [[nodiscard]] std::int32_t* last() const { return last_; }

private:
    const Point* points_;
    std::int32_t* first_;
    std::int32_t* last_;
};

/// The chains there and back along three or more sorted points, in `storage`.
/// Returns how many indices they take together; each end counts once.
std::size_t writeChains(std::span<const Point> points, std::int32_t* storage) {
    const auto n = static_cast<std::int32_t>(points.size());
    Chain there(points.data(), storage, 0, 1);
    for (std::int32_t i = 2; i < n; ++i) there.append(i);
    Chain back(points.data(), there.last(), n - 1, n - 2);
    for (std::int32_t i = n - 3; i >= 0; --i) back.append(i);
    return static_cast<std::size_t>(back.last() - storage);
}

/// The corners of the hull of sorted points, as an array of exactly their number
/// that is released with `free`; null without memory.
std::int32_t* makeHull(std::span<const Point> points, std::size_t& count) {
    // Each chain is at most as long as the points are many. Of sensible points
    // both together hardly exceed that, but of infinite ones they may.
    const std::size_t capacity = 2 * points.size();
    auto* indices = static_cast<std::int32_t*>(std::malloc(capacity * sizeof(std::int32_t)));
    if (indices == nullptr) return nullptr;
    if (points.size() < 3) {
        indices[0] = 0;
        indices[1] = static_cast<std::int32_t>(points.size()) - 1;
        count = 2;
    } else {
        count = writeChains(points, indices);
    }
    auto* shrunk = static_cast<std::int32_t*>(std::realloc(indices, count * sizeof(std::int32_t)));
    return shrunk == nullptr ? indices : shrunk;
}

}  // namespace

int cmpPoints(const void* a, const void* b) {
    const double ax = static_cast<const Point*>(a)->x;
    const double bx = static_cast<const Point*>(b)->x;
    return ax > bx ? 1 : (ax < bx ? -1 : 0);
}

bool rightTurn(const Point* points, std::int32_t i, std::int32_t j, std::int32_t k) {
    return signedArea(points[i], points[j], points[k]) < 0;
}

std::int32_t convexHull(Point* points, std::int32_t n, std::int32_t** outIndices) {
    if (outIndices != nullptr) *outIndices = nullptr;
    if (points == nullptr || n <= 0) return 0;
    const std::span all(points, static_cast<std::size_t>(n));
    sortForHull(all);

    std::size_t count = 0;
    std::int32_t* indices = makeHull(all, count);
    if (outIndices != nullptr) {
        *outIndices = indices;
    } else {
        std::free(indices);
    }
    return static_cast<std::int32_t>(count);
}

}  // namespace QZCore
