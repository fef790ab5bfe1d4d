// Composed characters: what people see as one character.
#pragma once

#include <cstddef>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Where the composed character ends that starts at `start`, which must be
/// below the length: a code point with the marks that combine with it, a
/// syllable of conjoining Hangul letters, a flag of two regional indicators, or
/// emoji joined to a sequence. A line feed after a carriage return is another
/// character.
[[nodiscard]] std::size_t composedCharacterEnd(StringView text, std::size_t start);

}  // namespace QZCore
