#include <2geom/bezier-utils.h>

#include <algorithm>
#include <cmath>

#include "bezier/fitted_cubics.h"

namespace QZCore {
namespace {

constexpr unsigned kMostCubics = 256;
// What the library takes, which counts in int.
constexpr std::size_t kMostPoints = 1U << 30;

// The library ends the process when its squares overflow.
constexpr double kFarthest = 1e60;
constexpr double kLargestError = 1e300;

/// NaN is not: the library drops such points.
bool isTooFar(Point point) {
    return std::abs(point.x) > kFarthest || std::abs(point.y) > kFarthest;
}

}  // namespace

std::vector<Point> fittedCubics(const std::vector<Point>& points, double error) {
    if (!(error >= 0) || points.size() > kMostPoints || std::ranges::any_of(points, isTooFar))
        return {};
    std::vector<Geom::Point> data;
    data.reserve(points.size());
    for (const Point& point : points) data.emplace_back(point.x, point.y);
    std::vector<Geom::Point> fitted(std::size_t{4} * kMostCubics);
    const int count =
        Geom::bezier_fit_cubic_r(fitted.data(), data.data(), static_cast<int>(data.size()),
                                 std::fmin(error, kLargestError), kMostCubics);
    std::vector<Point> cubics;
    cubics.reserve(4 * static_cast<std::size_t>(std::max(count, 0)));
    for (int i = 0; i < 4 * count; ++i) {
        const Geom::Point& point = fitted[static_cast<std::size_t>(i)];
        cubics.push_back({point.x(), point.y()});
    }
    return cubics;
}

}  // namespace QZCore
