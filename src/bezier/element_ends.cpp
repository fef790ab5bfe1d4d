#include "bezier/element_ends.h"

#include <algorithm>

#include "QZCore/bezier/bezier_path.h"

namespace QZCore {
namespace {

/// The index of the last move-to before `index`, or the count of elements.
std::size_t moveBefore(const detail::PathElements& elements, std::size_t index) {
    if (const std::vector<std::uint32_t>* moves = elements.knownMoves()) {
        const auto next = std::ranges::lower_bound(*moves, index);
        return next == moves->begin() ? elements.count() : *(next - 1);
    }
    while (index-- > 0) {
        if (elements.typeAt(index) == PathElementType::MoveTo) return index;
    }
    return elements.count();
}

}  // namespace

Point subpathStartBefore(const detail::PathElements& elements, std::size_t index) {
    const std::size_t move = moveBefore(elements, index);
    return move == elements.count() ? Point() : *elements.pointsAt(move);
}

Point endOfElement(const detail::PathElements& elements, std::size_t index) {
    const std::uint32_t count = detail::pointCountOf(elements.typeAt(index));
    return count == 0 ? subpathStartBefore(elements, index) : elements.pointsAt(index)[count - 1];
}

PathStep stepAt(const detail::PathElements& elements, std::size_t index) {
    const Point current = index == 0 ? Point() : endOfElement(elements, index - 1);
    return {elements.typeAt(index), elements.pointsAt(index), current,
            subpathStartBefore(elements, index)};
}

Point BezierPath::currentPoint() const {
    return isEmpty() ? Point() : endOfElement(elements_, elementCount() - 1);
}

}  // namespace QZCore
