// Style sheets from files.
#pragma once

#include <optional>
#include <string>

#include "QZCore/foundation/data.h"
#include "QZCore/markdown/style_sheet.h"

namespace qznote {

/// The style sheet that a property list or a JSON text holds; nothing when the
/// bytes are neither, or hold no dictionary.
[[nodiscard]] std::optional<QZCore::StyleSheet> readStyleSheet(QZCore::DataView bytes);

}  // namespace qznote
