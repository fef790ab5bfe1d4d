// The list of the installed faces, read once from fontconfig. It decides what
// is installed: loading a font never does, since that always finds something.
//
// A list does not change once it is made, so that any number of threads may
// read it without a lock.
#pragma once

#include <map>
#include <span>
#include <unordered_map>
#include <vector>

#include "platform/pango_font_patterns.h"

namespace QZCore {

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
