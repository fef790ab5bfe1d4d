// The fonts and colours that an RTF document lists at its start.
#pragma once

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "QZCore/color/color.h"
#include "QZCore/platform/fonts.h"
#include "richtext/rtf_output.h"

namespace QZCore {

/// The faces of a document, numbered from 0 on. Each is listed by its family,
/// which is what readers look for, and by its own name as the alternative.
class RtfFontTable {
public:
    /// The number of the face of `font`.
    [[nodiscard]] std::size_t numberOf(const Font& font);
    void write(RtfOutput& out) const;

private:
    using Names = std::pair<String, String>;  // of the family and of the face

    std::map<Names, std::size_t> numbers_;
    std::vector<Names> names_;
};

/// The colours of a document, numbered from 1 on; 0 is the reader's own.
class RtfColorTable {
public:
    /// The number of `color` as it looks on white paper, for RTF knows no
    /// transparency.
    [[nodiscard]] std::size_t numberOf(const Color& color);
    void write(RtfOutput& out) const;

private:
    std::map<std::uint32_t, std::size_t> numbers_;  // by red, green and blue
    std::vector<std::uint32_t> colors_;
};

/// Both.
struct RtfTables {
    RtfFontTable fonts{};
    RtfColorTable colors{};
};

}  // namespace QZCore
