// A first look at a figure and a rubber band, before the figure is rotated.
#pragma once

#include <algorithm>
#include <cmath>

#include "geometry/edges.h"

namespace QZCore {

/// The square that holds a rectangle's corners, whatever angle it is rotated by
/// about a centre. It is a little larger than the corners need, by more than all
/// roundings to single precision can move them.
class SelectionReach {
public:
    SelectionReach(Rect rect, Point center) {
        const double dx = std::max(std::abs(rect.origin.x - center.x),  //
                                   std::abs(rightOf(rect) - center.x));
        const double dy =
            std::max(std::abs(rect.origin.y - center.y), std::abs(bottomOf(rect) - center.y));
        const double radius = std::sqrt(dx * dx + dy * dy);
        const double magnitude = radius + std::abs(center.x) + std::abs(center.y);
        if (!(magnitude < kLimit)) return;

        const double reach = radius + kMargin * magnitude + kLeastMargin;
        left_ = center.x - reach;
        right_ = center.x + reach;
        top_ = center.y - reach;
        bottom_ = center.y + reach;
    }

    /// Whether the whole figure is beyond an edge of `selection`: no corner of the
    /// one lies in the other, and no edges meet. False where that is not known.
    [[nodiscard]] bool isOutside(Rect selection) const {
        return isBeyond(left_, right_, selection.origin.x, rightOf(selection)) ||
               isBeyond(top_, bottom_, selection.origin.y, bottomOf(selection));
    }

    /// Whether the whole figure lies in `selection`. False where that is not known.
    [[nodiscard]] bool isInside(Rect selection) const {
        return selection.origin.x <= left_ && right_ < rightOf(selection) &&
               selection.origin.y <= top_ && bottom_ < bottomOf(selection);
    }

private:
    // Far below where squares of floats overflow.
    static constexpr double kLimit = 1e15;
    static constexpr double kMargin = 1e-5;
    static constexpr double kLeastMargin = 1e-20;

    static bool isBeyond(double low, double high, double a, double b) {
        return high < std::min(a, b) || low > std::max(a, b);
    }

    // NaN compares as neither inside nor outside.
    double left_ = NAN;
    double right_ = NAN;
    double top_ = NAN;
    double bottom_ = NAN;
};

}  // namespace QZCore
