// Every character in a font that shows it.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include "QZCore/platform/fonts.h"
#include "richtext/flat_text.h"

namespace QZCore {

/// Fixes texts, one after the other, whose runs are numbered by one palette.
class FontFixing {
public:
    explicit FontFixing(const FontCatalog& catalog);
    ~FontFixing();

    /// A font that cannot show a character is replaced, for that character and
    /// the marks that join it, by one that can. Characters that no font shows
    /// keep theirs.
    void fixFonts(FlatText& text);

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace QZCore
