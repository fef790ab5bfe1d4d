#include "platform/pango_font_list.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string_view>
#include <tuple>

#include "platform/pango_font_weights.h"

namespace QZCore {
namespace {

// ---- Reading a pattern ------------------------------------------------------

std::string stringOf(const FcPattern* pattern, const char* object, int which = 0) {
    FcChar8* text = nullptr;
    if (FcPatternGetString(pattern, object, which, &text) != FcResultMatch) return {};
    return reinterpret_cast<const char*>(text);
}

double numberOf(const FcPattern* pattern, const char* object, double otherwise) {
    double number = otherwise;
    return FcPatternGetDouble(pattern, object, 0, &number) == FcResultMatch ? number : otherwise;
}

bool isTrue(const FcPattern* pattern, const char* object) {
    FcBool flag = FcFalse;
    return FcPatternGetBool(pattern, object, 0, &flag) == FcResultMatch && flag == FcTrue;
}

/// A name that a font gives in several languages, in English if it can be had.
String nameOf(const FcPattern* pattern, const char* object, const char* languageObject) {
    int which = 0;
    for (int i = 0; !stringOf(pattern, object, i).empty(); ++i) {
        if (stringOf(pattern, languageObject, i) != "en") continue;
        which = i;
        break;
    }
    return fromUTF8(stringOf(pattern, object, which));
}

const FcCharSet* coverageOf(const FcPattern* pattern) {
    FcCharSet* coverage = nullptr;
    return FcPatternGetCharSet(pattern, FC_CHARSET, 0, &coverage) == FcResultMatch ? coverage
                                                                                   : nullptr;
}

/// Whether text can be set in it: an outline or colour font, and one instance
/// of a variable font rather than the whole range.
bool isUsable(const FcPattern* pattern) {
    const std::string format = stringOf(pattern, FC_FONTFORMAT);
    return isTrue(pattern, FC_SCALABLE) && !isTrue(pattern, FC_VARIABLE) &&
           (format == "TrueType" || format == "CFF") && !stringOf(pattern, FC_FAMILY).empty() &&
           fontFileOf(pattern) && coverageOf(pattern) != nullptr;
}

FontMember memberOf(const FcPattern* pattern, StringView family) {
    FontMember member;
    member.uniqueName = fromUTF8(stringOf(pattern, FC_POSTSCRIPT_NAME));
    member.fullName = nameOf(pattern, FC_FULLNAME, FC_FULLNAMELANG);
    member.faceName = nameOf(pattern, FC_STYLE, FC_STYLELANG);
    member.weight = fontWeightFromFontconfig(numberOf(pattern, FC_WEIGHT, FC_WEIGHT_REGULAR));
    if (numberOf(pattern, FC_SLANT, FC_SLANT_ROMAN) >= FC_SLANT_ITALIC)
        member.traits |= kFontItalic;
    if (member.weight >= kLightestBoldWeight) member.traits |= kFontBold;

    if (member.faceName.empty()) member.faceName = u"Regular";
    if (member.fullName.empty()) member.fullName = String(family) + u" " + member.faceName;
    if (member.uniqueName.empty()) member.uniqueName = member.fullName;
    return member;
}

InstalledFace faceOf(FcPattern* pattern) {
    InstalledFace face;
    face.family = nameOf(pattern, FC_FAMILY, FC_FAMILYLANG);
    face.member = memberOf(pattern, face.family);
    face.width = numberOf(pattern, FC_WIDTH, FC_WIDTH_NORMAL);
    face.version = static_cast<int>(numberOf(pattern, FC_FONTVERSION, 0));
    face.file = *fontFileOf(pattern);
    FcPatternReference(pattern);
    face.pattern.reset(pattern);
    face.coverage = coverageOf(pattern);
    return face;
}

// ---- Ordering the list ------------------------------------------------------

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

std::optional<FontFile> fontFileOf(const FcPattern* pattern) {
    std::string path = stringOf(pattern, FC_FILE);
    if (path.empty()) return std::nullopt;
    return FontFile{std::move(path), static_cast<int>(numberOf(pattern, FC_INDEX, 0))};
}

FontList::FontList(FcConfig* config) {
    for (const FcSetName name : {FcSetSystem, FcSetApplication}) {
        const FcFontSet* set = config == nullptr ? nullptr : FcConfigGetFonts(config, name);
        for (int i = 0; set != nullptr && i < set->nfont; ++i) {
            if (isUsable(set->fonts[i])) faces_.push_back(faceOf(set->fonts[i]));
        }
    }
    std::ranges::sort(faces_, {}, sortKeyOf);
    const auto repeated = std::ranges::unique(faces_, isSameFace);
    faces_.erase(repeated.begin(), repeated.end());
    makeNamesUnique(faces_);
    for (const InstalledFace& face : faces_) {
        byUniqueName_.emplace(face.member.uniqueName, &face);
        byFullName_.emplace(face.member.fullName, &face);
        byFile_.emplace(face.file, &face);
    }
}

std::span<const InstalledFace> FontList::facesOf(StringView family) const {
    return std::ranges::equal_range(
        faces_, family, {}, [](const InstalledFace& face) { return StringView(face.family); });
}

const InstalledFace* FontList::withUniqueName(StringView name) const {
    return found(byUniqueName_, name);
}

const InstalledFace* FontList::withFullName(StringView name) const {
    return found(byFullName_, name);
}

const InstalledFace* FontList::storedIn(const FontFile& file) const { return found(byFile_, file); }

}  // namespace QZCore
