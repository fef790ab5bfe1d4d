// Lists of font families in order of preference.
#pragma once

#include <optional>

#include "QZCore/richtext/font_manager.h"

namespace QZCore {

/// The first piece of the comma-separated `families` that names an installed
/// family. Names are compared exactly: a blank after a comma is part of the
/// name behind it, so that stored lists mean the same everywhere.
[[nodiscard]] inline std::optional<String> firstInstalledFamily(const FontManager& fonts,
                                                                StringView families) {
    while (true) {
        const std::size_t comma = families.find(u',');
        const StringView piece = families.substr(0, comma);
        if (fonts.isFamilyInstalled(piece)) return String(piece);
        if (comma == StringView::npos) return std::nullopt;
        families.remove_prefix(comma + 1);
    }
}

}  // namespace QZCore
