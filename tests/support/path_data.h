// Paths as texts, for the tables of tests.
#pragma once

#include <vector>

#include "QZCore/bezier/svg_path_data.h"

namespace QZCore::testing {

/// The path with these SVG data.
inline BezierPath pathOf(StringView data) { return readSvgPathData(data).path; }

/// The points of all elements in order.
inline std::vector<Point> pointsOf(const BezierPath& path) {
    const detail::PathElements& elements = path.elements();
    return {elements.points(), elements.points() + elements.pointCount()};
}

}  // namespace QZCore::testing
