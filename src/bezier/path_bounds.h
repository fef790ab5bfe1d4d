// The smallest rectangle around a path.
#pragma once

#include "QZCore/bezier/path_elements.h"

namespace QZCore {

/// The rectangle around the ends of all elements and the curves between them.
[[nodiscard]] Rect boundsOf(const detail::PathElements& elements);

}  // namespace QZCore
