// Base64 with the standard alphabet, and with the one for URLs and file names
// (RFC 4648, sections 4 and 5).
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "QZCore/foundation/data.h"

namespace QZCore {

/// Appends `bytes` in base64 to `text`, with padding and without line breaks.
void appendBase64(std::string& text, DataView bytes);

/// `bytes` in base64 with "-" and "_" in place of "+" and "/", and without
/// padding.
[[nodiscard]] String urlSafeBase64Of(DataView bytes);

/// The bytes that `text` stands for. White space (blank, tab, line ends)
/// between the symbols is skipped; bits of the last symbol that no byte uses
/// are ignored. Nothing when another character occurs or the padding is
/// missing, too long or not at the end.
[[nodiscard]] std::optional<Data> base64Decoded(std::string_view text);

}  // namespace QZCore
