// The ends of single elements, without a walk over the whole path.
#pragma once

#include <cstddef>

#include "bezier/path_steps.h"

namespace QZCore {

/// Whether there is a first element, and it is a move-to.
[[nodiscard]] inline bool beginsWithMove(const detail::PathElements& elements) {
    return elements.count() > 0 && elements.typeAt(0) == PathElementType::MoveTo;
}

/// Where the element ends.
[[nodiscard]] Point endOfElement(const detail::PathElements& elements, std::size_t index);

/// Where the subpath begins to which the element belongs.
[[nodiscard]] Point subpathStartBefore(const detail::PathElements& elements, std::size_t index);

/// The element and its place.
[[nodiscard]] PathStep stepAt(const detail::PathElements& elements, std::size_t index);

}  // namespace QZCore
