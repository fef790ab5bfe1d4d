// Lines with teeth.
#pragma once

#include <cstdint>
#include <span>

#include "QZCore/bezier/bezier_path.h"

namespace QZCore {

/// A line of teeth from one point to another, as tips and bases in turn; its start
/// is not written. There is room for two points a tooth in `out`.
///
/// The tips are moved off the line by the line's direction with x and y exchanged,
/// times `width`: across the line when that lies along an axis, along it when it is
/// diagonal. A line of length 0 has its tips where it is.
void writeTeeth(Point from, Point to, std::uint32_t teeth, double width, Point* out);

/// Appends a line of teeth to `point` from the path's last element: from its point,
/// its first control point, or the start of its subpath. The points are put together
/// in `buffer`, which holds two for each tooth. Nothing happens when it holds fewer,
/// when there are no teeth, or when the path is empty.
void joc_jaggedLineToPoint(BezierPath& path, Point point, std::uint32_t teeth, double width,
                           std::span<Point> buffer);

}  // namespace QZCore
