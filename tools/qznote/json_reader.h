// JSON as values.
#pragma once

#include <string_view>

#include "QZCore/foundation/value.h"

namespace qznote {

/// The value of a JSON text; absent when it is none, or nests deeper than 512
/// levels. Nulls are left out of objects and arrays.
[[nodiscard]] QZCore::Value readJson(std::string_view text);

}  // namespace qznote
