// Numbers of any length for a collator that compares digits by value.
#pragma once

#include <optional>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// ICU compares digit runs by value in pieces of at most 254 digits, so that
/// a longer number would count as several. This gives `text` with every such
/// number rewritten as pieces of exactly 254 digits, in which the order of
/// numbers is the order of their pieces; nothing when no number is so long.
[[nodiscard]] std::optional<String> withLongNumbersInPieces(StringView text);

}  // namespace QZCore
