// Colours as older settings hold them: archived as objects.
#pragma once

#include <optional>

#include "QZCore/color/color.h"
#include "QZCore/foundation/data.h"

namespace QZCore {

/// The colour in a keyed archive of objects (a binary or XML property list with
/// "$objects") or in a stream of typed values; nothing when `bytes` are neither,
/// and for colours that are not made of a white level or of red, green and blue.
[[nodiscard]] std::optional<Color> legacyColor(DataView bytes);

// The two forms.

/// The colour in a keyed archive.
[[nodiscard]] std::optional<Color> keyedLegacyColor(DataView bytes);
/// The colour in a stream.
[[nodiscard]] std::optional<Color> streamedLegacyColor(DataView bytes);

}  // namespace QZCore
