#include <algorithm>
#include <limits>
#include <unordered_map>

#include "platform/font_choice.h"
#include "platform/machine_fonts.h"
#include "platform/pango_font_list.h"
#include "platform/pango_font_substitutes.h"
#include "platform/pango_font_widths.h"

namespace QZCore {
namespace {

/// What names the user's font, and is all of it on a machine without fonts.
constexpr StringView kUserFamily = u"sans-serif";

/// The width of a character, in sizes, on a machine without fonts.
constexpr double kAdvanceWithoutFonts = 0.5;

/// The listed face that fontconfig takes for the user's family; the first of
/// the list when it takes one that is not listed, null when the list is empty.
const InstalledFace* userFaceOf(const FontList& list, FcConfig* config) {
    if (list.faces().empty()) return nullptr;
    const OwnedFcPattern wanted = patternForFamily(kUserFamily, config);
    FcResult result = FcResultNoMatch;
    const OwnedFcPattern match(FcFontMatch(config, wanted.get(), &result));
    const auto file = match == nullptr ? std::nullopt : fontFileOf(match.get());
    const InstalledFace* face = file ? list.storedIn(*file) : nullptr;
    return face == nullptr ? &list.faces().front() : face;
}

using MembersByFamily = std::unordered_map<StringView, std::vector<FontMember>>;

/// The keys point into the list.
MembersByFamily membersOf(const FontList& list) {
    MembersByFamily members;
    for (const InstalledFace& face : list.faces()) members[face.family].push_back(face.member);
    return members;
}

class MachineFontCatalog final : public FontCatalog {
public:
    MachineFontCatalog()
        : config_(FcConfigReference(nullptr)),
          list_(config_.get()),
          members_(membersOf(list_)),
          userFace_(userFaceOf(list_, config_.get())),
          substitutes_(list_, config_.get()),
          widths_(list_, substitutes_, config_.get()) {}

    [[nodiscard]] std::vector<String> availableFamilies() const override {
        std::vector<String> names;
        for (const InstalledFace& face : list_.faces()) {
            if (names.empty() || names.back() != face.family) names.push_back(face.family);
        }
        return names;
    }

    [[nodiscard]] const std::vector<FontMember>& membersOfFamily(StringView family) const override {
        const auto members = members_.find(family);
        return members == members_.end() ? noMembers_ : members->second;
    }

    [[nodiscard]] std::optional<Font> fontNamed(StringView name, double size) const override {
        const InstalledFace* face = list_.withUniqueName(name);
        if (face == nullptr) face = list_.withFullName(name);
        if (face == nullptr) return std::nullopt;
        return fontOfMember(face->family, face->member, size);
    }

    [[nodiscard]] Font userFont(double size) const override {
        if (userFace_ != nullptr) return fontOfMember(userFace_->family, userFace_->member, size);
        return {.familyName = String(kUserFamily),
                .faceName = String(kUserFamily),
                .pointSize = usableFontSize(size)};
    }

    [[nodiscard]] double widthOfText(StringView text, const Font& font) const override {
        const InstalledFace* face = faceFor(font);
        const double unit = face == nullptr ? kAdvanceWithoutFonts * visibleCharacters(text)
                                            : widths_.widthOf(text, *face);
        return std::min(unit * usableFontSize(font.pointSize), std::numeric_limits<double>::max());
    }

    [[nodiscard]] bool showsCharacter(const Font& font, char32_t character) const override {
        if (needsNoGlyph(character)) return true;
        const InstalledFace* face = faceFor(font);
        return face != nullptr && face->covers(character);
    }

    [[nodiscard]] bool showsAscii(const Font& font) const override {
        const InstalledFace* face = faceFor(font);
        return face != nullptr && face->coversAscii();
    }

    [[nodiscard]] std::optional<Font> substituteFor(const Font& font,
                                                    char32_t character) const override {
        if (showsCharacter(font, character)) return font;
        const InstalledFace* face = faceFor(font);
        if (face != nullptr) face = substitutes_.substituteFor(*face, character);
        if (face == nullptr) return std::nullopt;
        return fontOfMember(face->family, face->member, font.pointSize);
    }

private:
    /// The face that `font` is or stands for; null on a machine without fonts.
    [[nodiscard]] const InstalledFace* faceFor(const Font& font) const {
        if (userFace_ == nullptr) return nullptr;
        if (const InstalledFace* face = list_.withUniqueName(font.faceName)) return face;
        auto faces = list_.facesOf(font.familyName);
        if (faces.empty()) faces = list_.facesOf(userFace_->family);
        const FaceStyle wanted{font.traits, font.weight};
        return &*std::ranges::min_element(faces, {}, [&](const InstalledFace& face) {
            return distanceBetween(face.style(), wanted);
        });
    }

    const OwnedFcConfig config_;
    const FontList list_;
    const MembersByFamily members_;
    const std::vector<FontMember> noMembers_;
    const InstalledFace* const userFace_;
    const FontSubstitutes substitutes_;
    const FontWidths widths_;
};

}  // namespace

std::shared_ptr<const FontCatalog> makeMachineFontCatalog() {
    return std::make_shared<MachineFontCatalog>();
}

}  // namespace QZCore
