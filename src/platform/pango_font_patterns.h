// Faces as fontconfig describes them.
#pragma once

#include <fontconfig/fontconfig.h>

#include <compare>
#include <memory>
#include <optional>
#include <string>

#include "QZCore/platform/fonts.h"
#include "platform/font_choice.h"

namespace QZCore {

// ---- Owners for what fontconfig hands out -----------------------------------

/// Calls fontconfig's own release function.
template <auto release>
struct FontconfigRelease {
    template <class T>
    void operator()(T* object) const {
        release(object);
    }
};

using OwnedFcConfig = std::unique_ptr<FcConfig, FontconfigRelease<FcConfigDestroy>>;
using OwnedFcPattern = std::unique_ptr<FcPattern, FontconfigRelease<FcPatternDestroy>>;
using OwnedFcFontSet = std::unique_ptr<FcFontSet, FontconfigRelease<FcFontSetDestroy>>;

// ---- Faces ------------------------------------------------------------------

/// Where a face is stored.
struct FontFile {
    std::string path;
    int index = 0;

    friend bool operator==(const FontFile&, const FontFile&) = default;
    friend auto operator<=>(const FontFile&, const FontFile&) = default;
};

/// The file that `pattern` names, if it names one.
[[nodiscard]] std::optional<FontFile> fontFileOf(const FcPattern* pattern);

/// A face that is installed.
struct InstalledFace {
    String family;
    FontMember member;
    /// Fontconfig's width: 100 is normal, less is condensed.
    double width = FC_WIDTH_NORMAL;
    int version = 0;
    FontFile file;
    /// What fontconfig knows of it.
    OwnedFcPattern pattern;
    /// The characters that it has glyphs for, a part of `pattern`.
    const FcCharSet* coverage = nullptr;

    [[nodiscard]] FaceStyle style() const { return {member.traits, member.weight}; }
    /// Whether it has a glyph for `character`.
    [[nodiscard]] bool covers(char32_t character) const {
        // Fontconfig drops the high bits of what is no character.
        return isCharacter(character) && FcCharSetHasChar(coverage, character) == FcTrue;
    }
    /// Whether it has a glyph for every ASCII character that is drawn by one.
    [[nodiscard]] bool coversAscii() const;
};

/// Whether text can be set in the font: an outline or colour font, and one
/// instance of a variable font rather than the whole range.
[[nodiscard]] bool isUsableFont(const FcPattern* pattern);

/// What a usable pattern describes. Names are in English where the font has
/// them in several languages.
[[nodiscard]] InstalledFace installedFaceOf(FcPattern* pattern);

/// What to ask fontconfig for when a font of `family` is wanted, with the
/// user's preferences filled in.
[[nodiscard]] OwnedFcPattern patternForFamily(StringView family, FcConfig* config);

}  // namespace QZCore
