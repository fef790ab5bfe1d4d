#include "bezier/path_boxes.h"

#include <algorithm>
#include <utility>

namespace QZCore {
namespace {

using detail::pointCountOf;

/// Where a subpath begins that is left or closed at `index`.
Point startBefore(const detail::PathElements& elements, const std::vector<std::uint32_t>& starts,
                  std::size_t index) {
    const auto next = std::ranges::lower_bound(starts, index);
    return next == starts.begin() ? Point() : *elements.pointsAt(*(next - 1));
}

void noteKind(detail::PathBoxes& boxes, std::uint32_t index, PathElementType type,
              PathElementType before) {
    if (type == PathElementType::LineTo || type == PathElementType::ClosePath) {
        boxes.straights.push_back(index);
    }
    boxes.hasCurves = boxes.hasCurves || type == PathElementType::CurveTo;
    if (type != PathElementType::MoveTo) return;
    boxes.starts[static_cast<std::size_t>(SubpathRule::EveryMove)].push_back(index);
    if (before == PathElementType::ClosePath) {
        boxes.starts[static_cast<std::size_t>(SubpathRule::MoveAfterClose)].push_back(index);
    }
}

}  // namespace

detail::PathBoxes detail::boxesOf(const PathElements& elements) {
    PathBoxes boxes;
    std::vector<Box> leaves;
    leaves.reserve(elements.count());
    PathElementType before = PathElementType::ClosePath;
    for (const PathStep& step : PathSteps(elements)) {
        noteKind(boxes, static_cast<std::uint32_t>(leaves.size()), step.type, before);
        leaves.push_back(boxAround(step));
        before = step.type;
    }
    if (boxes.starts[0].size() != boxes.starts[1].size()) {
        std::size_t index = 0;
        for (const PathStep& step : PathStepsBy<SubpathRule::MoveAfterClose>(elements)) {
            leaves[index] = unionOf(leaves[index], boxAround(step));
            ++index;
        }
    }
    boxes.tree = BoxTree(std::move(leaves));
    return boxes;
}

PathStep stepAt(const detail::PathElements& elements, const detail::PathBoxes& boxes,
                SubpathRule rule, std::size_t index) {
    const auto& starts = boxes.startsBy(rule);
    PathStep step{elements.typeAt(index), elements.pointsAt(index), {}, {}};
    if (index > 0) {
        const std::uint32_t count = pointCountOf(elements.typeAt(index - 1));
        step.current = count == 0 ? startBefore(elements, starts, index - 1)
                                  : elements.pointsAt(index - 1)[count - 1];
    }
    if (step.type == PathElementType::ClosePath || step.type == PathElementType::MoveTo) {
        step.subpathStart = startBefore(elements, starts, index);
    }
    return step;
}

}  // namespace QZCore
