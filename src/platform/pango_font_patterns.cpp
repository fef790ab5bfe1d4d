#include "platform/pango_font_patterns.h"

#include "platform/pango_font_weights.h"

namespace QZCore {
namespace {

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

}  // namespace

bool InstalledFace::coversAscii() const {
    static const FcCharSet* const ascii = [] {
        FcCharSet* characters = FcCharSetCreate();
        for (char32_t c = kFirstVisibleAscii; c <= kLastVisibleAscii; ++c) {
            FcCharSetAddChar(characters, c);
        }
        return characters;
    }();
    return coverage != nullptr && FcCharSetIsSubset(ascii, coverage) == FcTrue;
}

std::optional<FontFile> fontFileOf(const FcPattern* pattern) {
    std::string path = stringOf(pattern, FC_FILE);
    if (path.empty()) return std::nullopt;
    return FontFile{std::move(path), static_cast<int>(numberOf(pattern, FC_INDEX, 0))};
}

bool isUsableFont(const FcPattern* pattern) {
    const std::string format = stringOf(pattern, FC_FONTFORMAT);
    return isTrue(pattern, FC_SCALABLE) && !isTrue(pattern, FC_VARIABLE) &&
           (format == "TrueType" || format == "CFF") && !stringOf(pattern, FC_FAMILY).empty() &&
           fontFileOf(pattern) && coverageOf(pattern) != nullptr;
}

InstalledFace installedFaceOf(FcPattern* pattern) {
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

OwnedFcPattern patternForFamily(StringView family, FcConfig* config) {
    OwnedFcPattern pattern(FcPatternCreate());
    const std::string name = toUTF8(family);
    FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(name.c_str()));
    FcConfigSubstitute(config, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    return pattern;
}

}  // namespace QZCore
