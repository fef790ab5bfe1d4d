// Paths as pictures.
#pragma once

#include <string>

#include "QZCore/bezier/bezier_path.h"

namespace qznote {

/// An SVG document that shows the path as a line on white, with `whole`, the path
/// that it is a part of, faint behind it. Its longer side is 640 pixels.
[[nodiscard]] std::string svgDrawing(const QZCore::BezierPath& path,
                                     const QZCore::BezierPath& whole);

}  // namespace qznote
