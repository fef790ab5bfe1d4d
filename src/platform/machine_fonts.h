// The catalogue of the fonts that are installed on this machine.
#pragma once

#include <memory>

#include "QZCore/platform/fonts.h"

namespace QZCore {

/// Reads the list of the installed fonts, once for the life of the catalogue.
[[nodiscard]] std::shared_ptr<const FontCatalog> makeMachineFontCatalog();

}  // namespace QZCore
