// Empty lines inside of lists.
#pragma once

#include "QZCore/foundation/text.h"

namespace qznote {

/// `note` without the empty lines that would end a list, though it goes on below
/// them: with a line that is indented as far as the text of the item above, or
/// with an item that has the next number, or the same one. Empty lines of code
/// in a list get a blank instead.
[[nodiscard]] QZCore::String withTightLists(QZCore::StringView note);

}  // namespace qznote
