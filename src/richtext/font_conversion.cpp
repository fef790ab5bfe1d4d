#include <cstdlib>

#include "QZCore/richtext/font_manager.h"
#include "platform/font_choice.h"

namespace QZCore {
namespace {

constexpr int kBoldWeight = 9;

/// The member for which `distance` is least, the first of several; null when
/// it is negative for all.
template <class Distance>
const FontMember* leastDistantMember(const std::vector<FontMember>& members, Distance distance) {
    const FontMember* nearest = nullptr;
    int least = 0;
    for (const FontMember& member : members) {
        const int candidate = distance(member);
        if (candidate < 0 || (nearest != nullptr && candidate >= least)) continue;
        nearest = &member;
        least = candidate;
    }
    return nearest;
}

std::uint32_t changedTraits(std::uint32_t traits, std::uint32_t change) {
    if ((change & kFontBold) != 0) traits |= kFontBold;
    if ((change & kFontUnbold) != 0) traits &= ~std::uint32_t{kFontBold};
    if ((change & kFontItalic) != 0) traits |= kFontItalic;
    if ((change & kFontUnitalic) != 0) traits &= ~std::uint32_t{kFontItalic};
    return traits;
}

}  // namespace

FontManager::FontManager(std::shared_ptr<const FontCatalog> catalog)
    : catalog_(catalog == nullptr ? sharedFontCatalog() : std::move(catalog)) {}

FontManager FontManager::shared() { return FontManager(sharedFontCatalog()); }

bool FontManager::isFamilyInstalled(StringView family) const {
    return !catalog_->membersOfFamily(family).empty();
}

std::optional<Font> FontManager::fontNamed(StringView name, double size) const {
    return catalog_->fontNamed(name, usableFontSize(size));
}

Font FontManager::userFont(double size) const { return catalog_->userFont(usableFontSize(size)); }

double FontManager::widthOfText(StringView text, const Font& font) const {
    return catalog_->widthOfText(text, font);
}

Font FontManager::convertFontToFamily(const Font& font, StringView family) const {
    const std::vector<FontMember>& members = catalog_->membersOfFamily(family);
    if (members.empty()) return font;
    const FontMember& nearest = nearestMember(members, {font.traits, font.weight});
    return fontOfMember(family, nearest, font.pointSize);
}

Font FontManager::convertFontToFace(const Font& font, StringView faceName) const {
    return fontNamed(faceName, font.pointSize).value_or(font);
}

Font FontManager::convertFontToSize(const Font& font, double size) const {
    Font resized = font;
    if (usableFontSize(size) == size) resized.pointSize = size;
    return resized;
}

Font FontManager::convertFontToHaveTrait(const Font& font, std::uint32_t traits) const {
    const std::uint32_t wanted = changedTraits(font.traits, traits);
    if (wanted == font.traits) return font;
    int weight = font.weight;
    if (((wanted ^ font.traits) & kFontBold) != 0) {
        weight = (wanted & kFontBold) != 0 ? kBoldWeight : kFontRegularWeight;
    }
    const std::vector<FontMember>& members = catalog_->membersOfFamily(font.familyName);
    const FontMember* nearest = leastDistantMember(members, [&](const FontMember& member) {
        return member.traits == wanted ? std::abs(member.weight - weight) : -1;
    });
    return nearest == nullptr ? font : fontOfMember(font.familyName, *nearest, font.pointSize);
}

Font FontManager::convertFontToLighterWeight(const Font& font) const {
    const std::vector<FontMember>& members = catalog_->membersOfFamily(font.familyName);
    const FontMember* lighter = leastDistantMember(members, [&font](const FontMember& member) {
        const bool sameSlant = ((member.traits ^ font.traits) & kFontItalic) == 0;
        return sameSlant && member.weight < font.weight ? font.weight - member.weight : -1;
    });
    return lighter == nullptr ? font : fontOfMember(font.familyName, *lighter, font.pointSize);
}

bool FontManager::canFont(const Font& font, std::uint32_t haveTrait) const {
    for (const FontMember& member : catalog_->membersOfFamily(font.familyName)) {
        const StringView face = member.faceName;
        if (haveTrait == kFontBold &&
            (face == u"Bold" || face == u"Black" || face == u"Demibold")) {
            return true;
        }
        if (haveTrait == kFontItalic && (face == u"Italic" || face == u"Oblique")) return true;
    }
    return false;
}

}  // namespace QZCore
