// Texts in which no character bears more marks than a collator handles fast.
#pragma once

#include <optional>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Putting combining marks into their canonical order takes time quadratic in
/// their number. This gives `text` with a grapheme joiner, which no collation
/// counts and no mark is moved over, after every 30 marks in a row (Unicode
/// Standard Annex 15, section 13); nothing when there are nowhere so many.
[[nodiscard]] std::optional<String> withBoundedMarks(StringView text);

}  // namespace QZCore
