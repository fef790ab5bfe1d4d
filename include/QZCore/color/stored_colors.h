// Typed access to colours in dictionaries and preferences, which hold them as
// colour strings.
//
// The default stands in for an absent key only. A key whose value is no colour
// (an empty string, a number) gives no colour, whatever the default is.
#pragma once

#include <optional>

#include "QZCore/color/color.h"
#include "QZCore/export.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/preferences.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// The colour whose string is stored under `key`.
[[nodiscard]] QZ_EXPORT std::optional<Color> colorForKey(
    const Dictionary& dictionary, StringView key,
    const std::optional<Color>& withDefault = std::nullopt);

/// Stores the colour's string. No colour changes nothing.
QZ_EXPORT void setColor(Dictionary& dictionary, const std::optional<Color>& color,
                        StringView forKey);

/// The colour whose string is stored under `key`. Stored data is read as the
/// archived colour that older versions kept there; nothing else gives one.
[[nodiscard]] QZ_EXPORT std::optional<Color> colorForKey(
    const Preferences& preferences, StringView key,
    const std::optional<Color>& withDefault = std::nullopt);

/// Stores the colour's string. No colour changes nothing.
QZ_EXPORT void setColor(Preferences& preferences, const std::optional<Color>& color,
                        StringView forKey);

}  // namespace QZCore
