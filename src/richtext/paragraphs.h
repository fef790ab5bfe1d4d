// The paragraphs of a text.
#pragma once

#include <vector>

#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// The paragraphs of `text` in order, without their ends: line feed, carriage
/// return, both in a row, next line, or paragraph separator. An end at the end
/// of the text starts no further paragraph.
[[nodiscard]] std::vector<Range> paragraphsOf(StringView text);

}  // namespace QZCore
