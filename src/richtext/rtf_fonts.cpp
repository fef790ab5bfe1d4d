#include <algorithm>

#include "richtext/rtf_code_pages.h"
#include "richtext/rtf_definitions.h"
#include "richtext/rtf_units.h"

namespace QZCore {
namespace {

constexpr int kBoldWeight = 9;

std::uint32_t traitsOf(const RtfCharacter& character) {
    return (character.isBold ? kFontBold : 0U) | (character.isItalic ? kFontItalic : 0U);
}

}  // namespace

void RtfFonts::word(std::string_view name, RtfNumber number) {
    if (name == "f") {
        last_ = std::max(number.value, 0);
        entries_[last_] = {};
    } else if (name == "fcharset") {
        entries_[last_].codePage = codePageOfCharset(number.value);
    } else if (name == "cpg") {
        entries_[last_].codePage = number.value;
    }
}

void RtfFonts::name(StringView text) {
    Entry& entry = entries_[last_];
    if (entry.isNamed) return;
    const std::size_t end = text.find(u';');
    entry.isNamed = end != StringView::npos;
    entry.name += text.substr(0, end);
}

void RtfFonts::alternativeName(StringView text) { entries_[last_].alternative += text; }

std::optional<std::int32_t> RtfFonts::codePageOf(std::int32_t number) const {
    const auto entry = entries_.find(number);
    return entry == entries_.end() ? std::nullopt : entry->second.codePage;
}

std::optional<Font> RtfFonts::fontOf(const RtfCharacter& character) const {
    const std::uint32_t traits = traitsOf(character);
    const auto entry = entries_.find(character.font);
    if (entry == entries_.end() && character.halfPoints == 0 && traits == 0) return std::nullopt;
    const double size =
        character.halfPoints == 0 ? kFontDefaultSize : character.halfPoints / kHalfPoints;
    if (entry == entries_.end() || entry->second.name.empty()) {
        return fonts_.convertFontToHaveTrait(fonts_.userFont(size), traits);
    }
    const int weight = character.isBold ? kBoldWeight : kFontRegularWeight;
    return fontNamed(entry->second, {.pointSize = size, .traits = traits, .weight = weight});
}

/// The face that the document names when it has the traits, else the nearest
/// of the family.
Font RtfFonts::fontNamed(const Entry& entry, const Font& wanted) const {
    Font font = wanted;
    font.familyName = trimmedOfWhitespace(entry.name);
    font.faceName = trimmedOfWhitespace(entry.alternative);
    const auto face = fonts_.fontNamed(font.faceName, font.pointSize);
    if (face && face->familyName == font.familyName && face->traits == font.traits) return *face;
    if (fonts_.isFamilyInstalled(font.familyName)) {
        return fonts_.convertFontToFamily(font, font.familyName);
    }
    if (const auto named = fonts_.fontNamed(font.familyName, font.pointSize)) {
        return fonts_.convertFontToHaveTrait(*named, font.traits);
    }
    if (font.faceName.empty()) font.faceName = font.familyName;
    return font;
}

}  // namespace QZCore
