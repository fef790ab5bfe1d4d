// The title of a list.
#pragma once

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Whether a list is titled by the text before it, which starts with no white
/// space: one line with text, and one blank line.
[[nodiscard]] bool isListTitle(StringView textBefore);

}  // namespace QZCore
