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

/// What lies around points, of which there is at least one.
class Surroundings {
public:
    explicit Surroundings(Point first)
        : left_(first.x), top_(first.y), right_(first.x), bottom_(first.y), sum_(left_ + top_) {}

    void include(Point point) {
        const auto [x, y] = point;
        left_ = x < left_ ? x : left_;
        top_ = y < top_ ? y : top_;
        right_ = x > right_ ? x : right_;
        bottom_ = y > bottom_ ? y : bottom_;
        sum_ += x + y;
    }

    [[nodiscard]] Box box() const {
        const double farthest = std::max(std::max(-left_, -top_), std::max(right_, bottom_));
        if (std::isnan(sum_) || !(farthest <= kFarthest)) return kEverywhere;
        const double margin = kLeastMargin + kMarginOfExtent * (right_ - left_ + bottom_ - top_) +
                              kMarginOfCoordinates * farthest;
        return {static_cast<float>(left_ - margin), static_cast<float>(top_ - margin),
                static_cast<float>(right_ + margin), static_cast<float>(bottom_ + margin)};
    }

private:
    double left_;
    double top_;
    double right_;
    double bottom_;
    double sum_;  // not a number when a coordinate is none
};

}  // namespace

Box boxAround(const Point* points, std::size_t count) {
    Surroundings around(points[0]);
    for (std::size_t i = 1; i < count; ++i) around.include(points[i]);
    return around.box();
}

Box boxAround(const PathStep& step) {
    Surroundings around(step.current);
    switch (step.type) {
        case PathElementType::CurveTo:
            around.include(step.points[1]);
            around.include(step.points[2]);
            [[fallthrough]];
        case PathElementType::LineTo:
            around.include(step.points[0]);
            break;
        case PathElementType::MoveTo:
            around.include(step.points[0]);
            [[fallthrough]];
        case PathElementType::ClosePath:
            around.include(step.subpathStart);
            break;
    }
    return around.box();
}

}  // namespace QZCore
