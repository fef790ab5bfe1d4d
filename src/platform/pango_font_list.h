// The list of the installed faces, read once from fontconfig. It decides what
// is installed: loading a font never does, since that always finds something.
//
// A list does not change once it is made, so that any number of threads may
// read it without a lock.
#pragma once

#include <compare>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "QZCore/platform/fonts.h"
#include "platform/font_choice.h"
#include "platform/pango_fontconfig.h"

namespace QZCore {

/// Where a face is stored.
struct FontFile {
    std::string path;
    int index = 0;

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
        return FcCharSetHasChar(coverage, character) == FcTrue;
    }
};

/// All faces, sorted by family; within one normal width comes first, then
/// upright, then what is nearest to regular.
class FontList {
public:
    /// Reads the fonts of `config`; the list is empty when that is null.
    explicit FontList(FcConfig* config);

    [[nodiscard]] std::span<const InstalledFace> faces() const { return faces_; }

    /// The faces of `family`, empty when it is not installed.
    [[nodiscard]] std::span<const InstalledFace> facesOf(StringView family) const;

    /// The face of that unique name, or null.
    [[nodiscard]] const InstalledFace* withUniqueName(StringView name) const;

    /// The first face of that full name, or null.
    [[nodiscard]] const InstalledFace* withFullName(StringView name) const;

    /// The face stored there, or null when it is not listed.
    [[nodiscard]] const InstalledFace* storedIn(const FontFile& file) const;

    /// The place of `face`, one of the list, in `faces()`.
    [[nodiscard]] std::size_t placeOf(const InstalledFace& face) const {
        return static_cast<std::size_t>(&face - faces_.data());
    }

private:
    std::vector<InstalledFace> faces_;
    // All three point into the list.
    std::unordered_map<StringView, const InstalledFace*> byUniqueName_;
    std::unordered_map<StringView, const InstalledFace*> byFullName_;
    std::map<FontFile, const InstalledFace*> byFile_;
};

}  // namespace QZCore
