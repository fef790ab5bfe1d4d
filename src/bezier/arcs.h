// Arcs as cubic curves.
#pragma once

#include "QZCore/bezier/bezier_path.h"

namespace QZCore {

/// Appends a quarter of a circle from `center` + `spoke` a quarter turn towards
/// growing angles, after a line to its start; a move-to when the path is empty.
void appendQuarterArc(BezierPath& path, Point center, Point spoke);

}  // namespace QZCore
