// The material palette, to be looked at.
#pragma once

#include <string>
#include <string_view>

#include "command_line.h"

namespace qznote {

/// The swatches of a shade, or of all shades for an empty one, as HTML, for
/// a terminal or as text; nothing when there is no such shade.
[[nodiscard]] std::optional<std::string> paletteSwatches(std::string_view shade,
                                                         ResultFormat format);

}  // namespace qznote
