// A backslash and the character that it takes the meaning from.
#pragma once

#include <cstddef>

#include "QZCore/foundation/text.h"

namespace QZCore {

inline constexpr std::size_t kEscapeLength = 2;

/// The first escape at or after `from`, or the length of the text.
[[nodiscard]] std::size_t findEscape(StringView text, std::size_t from);

/// Puts a placeholder of the same length over every escape of `text` in `copy`,
/// which is made when there is one. Returns the copy, or `text` as it is.
[[nodiscard]] StringView coverEscapes(StringView text, String& copy);

}  // namespace QZCore
