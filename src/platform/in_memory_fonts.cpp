#include "QZCore/platform/fonts.h"

#include <algorithm>
#include <limits>
#include <set>

#include "platform/font_choice.h"
#include "platform/in_memory_font_selection.h"

namespace QZCore {
namespace {

/// A face and the family that it belongs to.
struct Face {
    const InMemoryFontFamily* family;
    const FontMember* member;
};

class InMemoryFontCatalog final : public FontCatalog {
public:
    /// `families` must not be empty.
    explicit InMemoryFontCatalog(std::vector<InMemoryFontFamily> families)
        : families_(std::move(families)) {}

    [[nodiscard]] std::vector<String> availableFamilies() const override {
        std::vector<String> names;
        for (const InMemoryFontFamily& family : families_) names.push_back(family.name);
        std::ranges::sort(names);
        return names;
    }

    [[nodiscard]] const std::vector<FontMember>& membersOfFamily(StringView name) const override {
        const InMemoryFontFamily* family = familyNamed(name);
        return family == nullptr ? noMembers_ : family->members;
    }

    [[nodiscard]] std::optional<Font> fontNamed(StringView name, double size) const override {
        auto face = faceWith(&FontMember::uniqueName, name);
        if (!face) face = faceWith(&FontMember::fullName, name);
        if (!face) return std::nullopt;
        return fontOfMember(face->family->name, *face->member, size);
    }

    [[nodiscard]] Font userFont(double size) const override {
        const InMemoryFontFamily& family = families_.front();
        return fontOfMember(family.name, family.members.front(), size);
    }

    [[nodiscard]] double widthOfText(StringView text, const Font& font) const override {
        const double width =
            visibleCharacters(text) * familyOf(font).advance * usableFontSize(font.pointSize);
        return std::min(width, std::numeric_limits<double>::max());
    }

    [[nodiscard]] bool showsCharacter(const Font& font, char32_t character) const override {
        return shows(familyOf(font), character);
    }

    [[nodiscard]] bool showsAscii(const Font& font) const override {
        const auto& coverage = familyOf(font).coverage;
        const auto isWhole = [](const auto& bounds) {
            return bounds.first <= kFirstVisibleAscii && bounds.second >= kLastVisibleAscii;
        };
        return coverage.empty() || std::ranges::any_of(coverage, isWhole) ||
               FontCatalog::showsAscii(font);
    }

    [[nodiscard]] std::optional<Font> substituteFor(const Font& font,
                                                    char32_t character) const override {
        if (showsCharacter(font, character)) return font;
        std::optional<Font> nearest;
        int nearestDistance = std::numeric_limits<int>::max();
        const FaceStyle wanted{font.traits, font.weight};
        for (const InMemoryFontFamily& family : families_) {
            if (!shows(family, character)) continue;
            const FontMember& member = nearestMember(family.members, wanted);
            const int distance = distanceBetween({member.traits, member.weight}, wanted);
            if (distance >= nearestDistance) continue;
            nearestDistance = distance;
            nearest = fontOfMember(family.name, member, font.pointSize);
        }
        return nearest;
    }

private:
    [[nodiscard]] const InMemoryFontFamily* familyNamed(StringView name) const {
        const auto found = std::ranges::find(families_, name, &InMemoryFontFamily::name);
        return found == families_.end() ? nullptr : &*found;
    }

    [[nodiscard]] std::optional<Face> faceWith(String FontMember::*field, StringView name) const {
        for (const InMemoryFontFamily& family : families_) {
            const auto found = std::ranges::find(family.members, name, field);
            if (found != family.members.end()) return Face{&family, &*found};
        }
        return std::nullopt;
    }

    [[nodiscard]] const InMemoryFontFamily& familyOf(const Font& font) const {
        if (const auto face = faceWith(&FontMember::uniqueName, font.faceName))
            return *face->family;
        const InMemoryFontFamily* family = familyNamed(font.familyName);
        return family == nullptr ? families_.front() : *family;
    }

    [[nodiscard]] static bool shows(const InMemoryFontFamily& family, char32_t character) {
        if (needsNoGlyph(character)) return true;
        if (!isCharacter(character)) return false;
        return family.coverage.empty() ||
               std::ranges::any_of(family.coverage, [&](const auto& bounds) {
                   return character >= bounds.first && character <= bounds.second;
               });
    }

    std::vector<InMemoryFontFamily> families_;
    const std::vector<FontMember> noMembers_;
};

void dropUnusable(std::vector<InMemoryFontFamily>& families) {
    std::set<String> known;
    std::erase_if(families, [&](const InMemoryFontFamily& family) {
        return family.members.empty() || !known.insert(family.name).second;
    });
}

}  // namespace

std::shared_ptr<const FontCatalog> makeInMemoryFontCatalog(
    std::vector<InMemoryFontFamily> families) {
    dropUnusable(families);
    if (families.empty()) families = inMemoryFontSelection();
    return std::make_shared<InMemoryFontCatalog>(std::move(families));
}

}  // namespace QZCore
