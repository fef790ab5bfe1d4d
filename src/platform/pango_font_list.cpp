#include "platform/pango_font_list.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>

namespace QZCore {
namespace {

using SortKey = std::tuple<const String&, double, double, std::uint32_t, int, int, const String&,
                           const String&, int, const FontFile&>;

SortKey sortKeyOf(const InstalledFace& face) {
    const FontMember& member = face.member;
    return {face.family,
            std::abs(face.width - FC_WIDTH_NORMAL),
            face.width,
            member.traits & kFontItalic,
            std::abs(member.weight - kFontRegularWeight),
            member.weight,
            member.faceName,
            member.uniqueName,
            -face.version,
            face.file};
}

StringView familyOf(const InstalledFace& face) { return face.family; }

/// Whether both are the same face, installed twice.
bool isSameFace(const InstalledFace& a, const InstalledFace& b) {
    return a.family == b.family && a.member == b.member && a.width == b.width;
}

String withoutSpaces(String text) {
    std::erase(text, u' ');
    return text;
}

/// The instances of a variable font may all go by the name of the font: those
/// that come later add the name of the face, and a number where even that is
/// not enough.
void makeNamesUnique(std::vector<InstalledFace>& faces) {
    std::set<String> uniqueNames;
    std::set<String> fullNames;
    for (InstalledFace& face : faces) {
        FontMember& member = face.member;
        if (!fullNames.insert(member.fullName).second) {
            member.fullName = face.family + u" " + member.faceName;
        }
        if (uniqueNames.insert(member.uniqueName).second) continue;
        const String longer = member.uniqueName + u"-" + withoutSpaces(member.faceName);
        member.uniqueName = longer;
        for (int i = 2; !uniqueNames.insert(member.uniqueName).second; ++i) {
            member.uniqueName = longer + u"-" + integerString(i);
        }
    }
}

template <class Map>
const InstalledFace* found(const Map& map, const typename Map::key_type& key) {
    const auto entry = map.find(key);
    return entry == map.end() ? nullptr : entry->second;
}

}  // namespace

FontList::FontList(FcConfig* config) {
    for (const FcSetName name : {FcSetSystem, FcSetApplication}) {
        const FcFontSet* set = config == nullptr ? nullptr : FcConfigGetFonts(config, name);
        for (int i = 0; set != nullptr && i < set->nfont; ++i) {
            if (isUsableFont(set->fonts[i])) faces_.push_back(installedFaceOf(set->fonts[i]));
        }
    }
    std::ranges::sort(faces_, {}, sortKeyOf);
    faces_.erase(std::unique(faces_.begin(), faces_.end(), isSameFace), faces_.end());
    makeNamesUnique(faces_);
    for (const InstalledFace& face : faces_) {
        byUniqueName_.emplace(face.member.uniqueName, &face);
        byFullName_.emplace(face.member.fullName, &face);
        byFile_.emplace(face.file, &face);
    }
}

std::span<const InstalledFace> FontList::facesOf(StringView family) const {
    const auto first = std::ranges::lower_bound(faces_, family, {}, familyOf);
    const auto last = std::ranges::upper_bound(first, faces_.end(), family, {}, familyOf);
    return {first, last};
}

const InstalledFace* FontList::withUniqueName(StringView name) const {
    return found(byUniqueName_, name);
}

const InstalledFace* FontList::withFullName(StringView name) const {
    return found(byFullName_, name);
}

const InstalledFace* FontList::storedIn(const FontFile& file) const { return found(byFile_, file); }

}  // namespace QZCore
