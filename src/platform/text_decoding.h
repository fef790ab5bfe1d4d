// Bytes in a character set of any kind, turned into text.
#pragma once

#include <optional>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// `bytes` decoded from the character set with the registered name `charset`;
/// nothing when they are not valid in it or the set is not known.
[[nodiscard]] std::optional<String> decodedText(std::string_view bytes, const char* charset);

}  // namespace QZCore
