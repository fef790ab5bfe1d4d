// Percent-encoded UTF-8.
#pragma once

#include <optional>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// `text` with every "%" and two hexadecimal digits read as a byte of UTF-8;
/// all other characters stay. Nothing when a "%" is not followed by two digits
/// or when the bytes between two other characters are not UTF-8.
[[nodiscard]] std::optional<String> percentDecoded(StringView text);

}  // namespace QZCore
