// What stands behind the name of a variable.
#pragma once

#include <cstdint>
#include <optional>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// The parts of a tail, as views of it.
struct VariableTail {
    /// How to write a date; empty for no format.
    StringView format;
    /// Whether the time is asked for.
    bool withTime = false;
    /// What stands behind the slash.
    StringView letterCase;
};

/// The parts of `tail`.
[[nodiscard]] VariableTail parsedTail(StringView tail);

/// Whether a format may be used under `options`.
[[nodiscard]] bool isAcceptedFormat(StringView format, std::uint32_t options);

/// The pattern of a format that is one: what follows "Format:".
[[nodiscard]] std::optional<StringView> patternOfFormat(StringView format);

}  // namespace QZCore
