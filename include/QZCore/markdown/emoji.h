// Emoji short codes: the names that stand between colons for an emoji.
#pragma once

#include <optional>
#include <span>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// A short code, without its colons and in lower case, and its emoji.
struct EmojiShortcode {
    /// The code.
    StringView code;
    /// One emoji, of one or more code points.
    StringView emoji;
};

/// The short codes of the public emoji cheat sheet, sorted by code unit.
[[nodiscard]] QZ_EXPORT std::span<const EmojiShortcode> emojiCheatSheetToUnicode();

/// The emoji of one short code; nothing for an unknown one. Case counts: codes
/// are lower case.
[[nodiscard]] QZ_EXPORT std::optional<StringView> emojiForShortcode(StringView code);

}  // namespace QZCore
