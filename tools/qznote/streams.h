// Files and the standard streams, both by name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "QZCore/foundation/data.h"

namespace qznote {

/// The name of the standard input and output.
inline constexpr std::string_view kStandardStream = "-";

/// All bytes of the file, or of the standard input; nothing when it cannot be
/// read.
[[nodiscard]] std::optional<QZCore::Data> readAll(const std::string& name);

/// Writes the file as a whole, or to the standard output, and returns whether
/// everything has arrived.
[[nodiscard]] bool writeAll(const std::string& name, std::string_view text);

}  // namespace qznote
