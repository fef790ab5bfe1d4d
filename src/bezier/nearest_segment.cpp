#include "bezier/nearest_segment.h"

#include <cmath>
#include <limits>

#include "bezier/path_boxes.h"

namespace QZCore {
namespace {

constexpr SubpathRule kRule = SubpathRule::MoveAfterClose;
constexpr std::ptrdiff_t kNone = -1;
// By how much rounding may make a measured distance smaller than it is.
constexpr double kRounding = 1e-6;

/// The nearest of the elements that were looked at, in any order; the first in the
/// path of equally near ones.
class Nearest {
public:
    Nearest(Point point, const HitRadius& radius) : point_(point), radius_(radius) {}

    void lookAt(std::size_t index, const PathStep& step) {
        // No distance: rounding leaves some less than 0, but none that far.
        constexpr float kUnmeasured = std::numeric_limits<float>::lowest();
        SegmentHit hit{static_cast<std::ptrdiff_t>(index), 0, kUnmeasured};
        isStepHit(step, point_, &hit.position, radius_, &hit.distanceSquared);
        if (hit.distanceSquared == kUnmeasured) return;
        const bool isNearer =
            hit.distanceSquared < found_.distanceSquared ||
            (hit.distanceSquared == found_.distanceSquared && hit.index < found_.index);
        if (!isAny() || isNearer) found_ = hit;
    }
    [[nodiscard]] bool isAny() const { return found_.index != kNone; }
    [[nodiscard]] const SegmentHit& found() const { return found_; }

    /// Whether a curve in the box, which comes after the element `before`, may be the
    /// nearest one: by its distance, of which rounding can leave less than 0, or because
    /// it is too far to be seen, which counts as no distance at all.
    [[nodiscard]] bool mayBeIn(const Box& box, std::size_t before) const {
        const double known = std::fmax(found_.distanceSquared, 0);
        if (!(squaredDistance(box, point_) * (1 - kRounding) > known)) return true;
        const bool isTouched =
            found_.distanceSquared <= 0 && found_.index <= static_cast<std::ptrdiff_t>(before);
        return !isTouched &&
               !(squaredReach(box, point_) * (1 + kRounding) < kFarthestSquaredDistance);
    }

private:
    Point point_;
    const HitRadius& radius_;
    SegmentHit found_{kNone, 0, 0};
};

/// The first element of which the point is the first point, or 0.
std::ptrdiff_t elementAt(const detail::PathElements& elements, Point point) {
    std::ptrdiff_t found = 0;
    visitUntil<kRule>(
        elements, [&](const Box& box) { return isWithin(box, point, 0); },
        [&](std::size_t index, const PathStep& step) {
            if (index > 0 && beginsWith(step, point)) found = static_cast<std::ptrdiff_t>(index);
            return found > 0;
        });
    return found;
}

void lookAtAll(Nearest& nearest, const detail::PathElements& elements) {
    std::size_t index = 0;
    for (const PathStep& step : PathStepsBy<kRule>(elements)) nearest.lookAt(index++, step);
}

/// Looks at the first element that can be measured, which is the nearest one even if
/// its distance is not a number; at all lines, whose distance no box tells, since
/// they count as endless; and at the curves that may be nearer.
void lookAtLikelyOnes(Nearest& nearest, const detail::PathElements& elements,
                      const detail::PathBoxes& boxes, Point point) {
    const auto lookAt = [&](std::size_t index) {
        nearest.lookAt(index, stepAt(elements, boxes, kRule, index));
    };
    for (std::size_t i = 1; i < elements.count() && !nearest.isAny(); ++i) lookAt(i);
    for (const std::uint32_t index : boxes.straights) lookAt(index);
    if (!boxes.hasCurves) return;
    const std::size_t likely = boxes.tree.leafNear(point);
    if (elements.typeAt(likely) == PathElementType::CurveTo) lookAt(likely);
    std::size_t before = 0;
    boxes.tree.visitUntil([&](const Box& box) { return nearest.mayBeIn(box, before); },
                          [&](std::size_t index) {
                              before = index;
                              if (elements.typeAt(index) == PathElementType::CurveTo) lookAt(index);
                              return false;
                          });
}

}  // namespace

SegmentHit nearestSegment(const detail::PathElements& elements, Point point,
                          const HitRadius& radius) {
    const detail::PathBoxes* boxes = elements.boxes();
    if (const std::ptrdiff_t index = elementAt(elements, point); index > 0) return {index, 0, 0};
    Nearest nearest(point, radius);
    if (boxes != nullptr) {
        lookAtLikelyOnes(nearest, elements, *boxes, point);
    } else {
        lookAtAll(nearest, elements);
    }
    return nearest.found();
}

}  // namespace QZCore
