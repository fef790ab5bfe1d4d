// What a path measures, for people.
#pragma once

#include <string>

#include "QZCore/bezier/bezier_path.h"

namespace qznote {

/// The number of elements, the length, the bounds as x, y, width and height, and the
/// convex hull of all points, control points included, as path data.
[[nodiscard]] std::string pathReport(const QZCore::BezierPath& path);

}  // namespace qznote
