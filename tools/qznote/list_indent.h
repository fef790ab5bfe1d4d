// How far a note indents its lists.
#pragma once

#include <cstdint>

#include "QZCore/foundation/text.h"

namespace qznote {

/// The blanks, 2 to 4, by which `note` sets sub-items in. Notes differ in this,
/// and each keeps to its own habit: items that are indented by more than the
/// item before them show it. Without such items, 4.
[[nodiscard]] std::int64_t blanksPerLevel(QZCore::StringView note);

}  // namespace qznote
