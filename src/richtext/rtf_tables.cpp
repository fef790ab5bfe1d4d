#include "richtext/rtf_tables.h"

#include <algorithm>
#include <cmath>

namespace QZCore {
namespace {

constexpr std::uint32_t kByteMask = 255;

/// A component over white, as a byte; what is not a number counts as 0.
std::uint32_t byteOf(double component, double alpha) {
    const double opaque = std::isnan(alpha) ? 1 : std::clamp(alpha, 0.0, 1.0);
    const double shown = (std::isnan(component) ? 0 : std::clamp(component, 0.0, 1.0)) * opaque;
    return static_cast<std::uint32_t>(std::lround((shown + 1 - opaque) * kByteMask));
}

/// A name without the character that ends names.
String withoutSemicolons(String name) {
    std::erase(name, u';');
    return name;
}

}  // namespace

std::size_t RtfFontTable::numberOf(const Font& font) {
    const auto [at, isNew] = numbers_.try_emplace({font.familyName, font.faceName}, names_.size());
    if (isNew) names_.push_back(at->first);
    return at->second;
}

void RtfFontTable::write(RtfOutput& out) const {
    if (names_.empty()) return;
    out.openGroup();
    out.word("fonttbl");
    for (std::size_t number = 0; number < names_.size(); ++number) {
        const auto& [family, face] = names_[number];
        out.openGroup();
        out.word("f", static_cast<std::int64_t>(number));
        out.word("fnil");
        out.word("fcharset", 0);
        out.text(withoutSemicolons(family));
        out.openIgnorableGroup("falt");
        out.text(withoutSemicolons(face));
        out.closeGroup();
        out.mark(";}");
    }
    out.mark("}\n");
}

std::size_t RtfColorTable::numberOf(const Color& color) {
    const double alpha = color.alphaComponent();
    const std::uint32_t rgb = byteOf(color.redComponent(), alpha) << 16 |
                              byteOf(color.greenComponent(), alpha) << 8 |
                              byteOf(color.blueComponent(), alpha);
    const auto [at, isNew] = numbers_.try_emplace(rgb, colors_.size() + 1);
    if (isNew) colors_.push_back(rgb);
    return at->second;
}

void RtfColorTable::write(RtfOutput& out) const {
    if (colors_.empty()) return;
    out.openGroup();
    out.word("colortbl");
    out.mark(";");
    for (const std::uint32_t rgb : colors_) {
        out.word("red", rgb >> 16);
        out.word("green", rgb >> 8 & kByteMask);
        out.word("blue", rgb & kByteMask);
        out.mark(";");
    }
    out.mark("}\n");
}

}  // namespace QZCore
