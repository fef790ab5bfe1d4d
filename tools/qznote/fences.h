// Fences around code as people write them elsewhere.
#pragma once

#include "QZCore/foundation/text.h"

namespace qznote {

/// `note` with the fences around its code as the dialect knows them: at the
/// start of the line, and without a language. Code that was indented with its
/// fence stands at the start of the line too, except below a line of text, where
/// the indentation keeps it apart from an item of a list. A fence that no other
/// one closes stays as it is.
[[nodiscard]] QZCore::String withPlainFences(QZCore::StringView note);

}  // namespace qznote
