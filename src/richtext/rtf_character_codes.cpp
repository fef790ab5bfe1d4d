#include "richtext/rtf_character_codes.h"

#include <algorithm>
#include <cmath>

#include "richtext/rtf_underlines.h"
#include "richtext/rtf_units.h"

namespace QZCore {
namespace {

/// A number of half points, kept within what readers take.
std::int32_t halfPointsOf(double points) {
    constexpr double kMost = 3276;
    if (std::isnan(points)) return 0;
    return static_cast<std::int32_t>(std::lround(std::clamp(points * kHalfPoints, -kMost, kMost)));
}

void writeFont(const Font& font, RtfTables& tables, RtfOutput& out) {
    out.word("f", static_cast<std::int64_t>(tables.fonts.numberOf(font)));
    out.word("fs", std::max(1, halfPointsOf(font.pointSize)));
    if ((font.traits & kFontBold) != 0) out.word("b");
    if ((font.traits & kFontItalic) != 0) out.word("i");
}

void writeColors(const TextAttributes& attributes, RtfTables& tables, RtfOutput& out) {
    const auto numberOf = [&](const Color& color) {
        return static_cast<std::int64_t>(tables.colors.numberOf(color));
    };
    const Color* foreground = attributes.foregroundColor();
    if (foreground != nullptr && !foreground->isIdenticalTo(Color::textColor())) {
        out.word("cf", numberOf(*foreground));
    }
    const Color* background = attributes.backgroundColor();
    if (background == nullptr || !(background->alphaComponent() > 0)) return;
    // Readers know one or the other of these.
    out.word("chshdng", 0);
    out.word("chcbpat", numberOf(*background));
    out.word("cb", numberOf(*background));
}

void writeUnderline(const TextAttributes& attributes, RtfTables& tables, RtfOutput& out) {
    const std::int32_t style = attributes.underlineStyle();
    if (style == 0) return;
    const auto* known = std::ranges::find(kRtfUnderlines, style, &RtfUnderline::style);
    out.word(known == kRtfUnderlines.end() ? kRtfUnderlines.front().word : known->word);
    const Value* color = attributes.find(NSUnderlineColorAttributeName);
    const Color* drawn = color == nullptr ? nullptr : color->boxedValue<Color>();
    if (drawn != nullptr) {
        out.word("ulc", static_cast<std::int64_t>(tables.colors.numberOf(*drawn)));
    }
}

void writeStrikethrough(std::int32_t style, RtfOutput& out) {
    if (style == 0) return;
    if (style == kDoubleLine) return out.word("striked", 1);
    out.word("strike");
}

void writeBaseline(const TextAttributes& attributes, RtfOutput& out) {
    const std::int64_t level = attributes.objectForKey(NSSuperscriptAttributeName).integerValue();
    if (level != 0) out.word(level > 0 ? "super" : "sub");
    const std::int32_t offset =
        halfPointsOf(attributes.objectForKey(NSBaselineOffsetAttributeName).doubleValue());
    if (offset != 0) out.word(offset > 0 ? "up" : "dn", std::abs(offset));
}

}  // namespace

std::string rtfCharacterCodes(const TextAttributes& attributes, RtfTables& tables) {
    RtfOutput out;
    if (attributes.font() != nullptr) writeFont(*attributes.font(), tables, out);
    writeColors(attributes, tables, out);
    writeUnderline(attributes, tables, out);
    writeStrikethrough(attributes.strikethroughStyle(), out);
    writeBaseline(attributes, out);
    return out.bytes();
}

}  // namespace QZCore
