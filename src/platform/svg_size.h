// The size of drawings in SVG.
#pragma once

#include <optional>

#include "QZCore/foundation/data.h"

namespace QZCore {

/// A width and a height in points.
struct SvgSize {
    double width = 0;
    double height = 0;
};

/// The size that the drawing states, or that follows from its view box, which
/// counts as 300 by 150 when it is missing; nothing when `file` is no
/// well-formed SVG document. Nothing is drawn: a drawing of a kilobyte can
/// keep a renderer busy for minutes.
[[nodiscard]] std::optional<SvgSize> svgSize(DataView file);

}  // namespace QZCore
