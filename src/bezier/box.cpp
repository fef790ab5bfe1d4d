#include "bezier/box.h"

namespace QZCore {
namespace {

// Crossings count within 0.0001 of an element's extent beyond its ends, and runs
// of less than 0.001 as straight along an axis.
constexpr double kMarginOfExtent = 1e-3;
constexpr double kLeastMargin = 2e-3;
// The rounding of coordinates to the floats of a box.
constexpr double kMarginOfCoordinates = 2e-7;
// Farther out, the rounding of the questions' own steps exceeds the margins.
constexpr double kFarthest = 1e9;

}  // namespace

Box boxAround(const Point* points, std::size_t count) {
    double left = points[0].x;
    double top = points[0].y;
    double right = left;
    double bottom = top;
    double sum = left + top;  // not a number when a coordinate is none
    for (std::size_t i = 1; i < count; ++i) {
        const auto [x, y] = points[i];
        left = x < left ? x : left;
        top = y < top ? y : top;
        right = x > right ? x : right;
        bottom = y > bottom ? y : bottom;
        sum += x + y;
    }
    const double farthest = std::max(std::max(-left, -top), std::max(right, bottom));
    if (std::isnan(sum) || !(farthest <= kFarthest)) return kEverywhere;
    const double margin = kLeastMargin + kMarginOfExtent * (right - left + bottom - top) +
                          kMarginOfCoordinates * farthest;
    return {static_cast<float>(left - margin), static_cast<float>(top - margin),
            static_cast<float>(right + margin), static_cast<float>(bottom + margin)};
}

Box boxAround(const PathStep& step) {
    Point points[4] = {step.current, step.end()};
    switch (step.type) {
        case PathElementType::MoveTo:
            points[2] = step.subpathStart;
            return boxAround(points, 3);
        case PathElementType::CurveTo:
            points[2] = step.points[0];
            points[3] = step.points[1];
            return boxAround(points, 4);
        case PathElementType::LineTo:
        case PathElementType::ClosePath:
            break;
    }
    return boxAround(points, 2);
}

}  // namespace QZCore
