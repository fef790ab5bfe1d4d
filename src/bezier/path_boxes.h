// Where the elements of a long path lie, and visits to those that matter.
#pragma once

#include <vector>

#include "bezier/box_tree.h"
#include "bezier/path_steps.h"

namespace QZCore {
namespace detail {

struct PathBoxes {
    /// A box for each element. Where the rules for subpaths place an element
    /// differently, its box encloses it in both places.
    BoxTree tree;
    /// The lines and close-paths.
    std::vector<std::uint32_t> straights;
    bool hasCurves = false;
    /// The move-tos that start a subpath, by each of the rules.
    std::vector<std::uint32_t> starts[2];

    [[nodiscard]] const std::vector<std::uint32_t>& startsBy(SubpathRule rule) const {
        return starts[static_cast<std::size_t>(rule)];
    }
};

[[nodiscard]] PathBoxes boxesOf(const PathElements& elements);

}  // namespace detail

/// An element of a long path. The start of its subpath is that of an element which
/// goes there, and (0, 0) for others.
[[nodiscard]] PathStep stepAt(const detail::PathElements& elements, const detail::PathBoxes& boxes,
                              SubpathRule rule, std::size_t index);

/// Visits elements in order, with their indices, until `visit` returns true for one;
/// whether it did. Leaves out elements whose box `enters` does not let in, for which
/// it must not let in any box around that one.
template <SubpathRule rule, class Enters, class Visit>
bool visitUntil(const detail::PathElements& elements, Enters enters, Visit visit) {
    if (const detail::PathBoxes* boxes = elements.boxesIfAskedAgain()) {
        return boxes->tree.visitUntil(enters, [&](std::size_t index) {
            return visit(index, stepAt(elements, *boxes, rule, index));
        });
    }
    std::size_t index = 0;
    for (const PathStep& step : PathStepsBy<rule>(elements)) {
        if (enters(boxAround(step)) && visit(index, step)) return true;
        ++index;
    }
    return false;
}

}  // namespace QZCore
