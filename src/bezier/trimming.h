// Where a path is cut so that it has a given length.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "QZCore/bezier/path_elements.h"

namespace QZCore {

/// An element with points of its own.
struct PathPiece {
    PathElementType type;
    std::array<Point, 3> points;
    /// Where it ends on the element that it is the beginning of, from 0 to 1.
    double t = 1;
};

/// The element in which the cut is, and what is left of it.
struct PathCut {
    std::size_t index;
    PathPiece piece;
};

/// The cut after `length`, with curves measured to within `maxError`. Nothing when
/// all elements together do not exceed that length.
[[nodiscard]] std::optional<PathCut> cutAtLength(const detail::PathElements& elements, float length,
                                                 float maxError);

}  // namespace QZCore
