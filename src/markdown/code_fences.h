// The fences of code blocks.
#pragma once

#include <cstddef>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// The first fence from `from` on that ends its line, so that a block could
/// start there; the length of the text when there is none.
[[nodiscard]] std::size_t findOpeningFence(StringView text, std::size_t from);

}  // namespace QZCore
