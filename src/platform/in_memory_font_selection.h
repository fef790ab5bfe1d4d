// The families of the made-up catalogue when the caller gives none.
#pragma once

#include <vector>

#include "QZCore/platform/fonts.h"

namespace QZCore {

/// The selection that `makeInMemoryFontCatalog` documents.
[[nodiscard]] std::vector<InMemoryFontFamily> inMemoryFontSelection();

}  // namespace QZCore
