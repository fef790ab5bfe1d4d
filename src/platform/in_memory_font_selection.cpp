#include "platform/in_memory_font_selection.h"

#include <algorithm>
#include <array>

namespace QZCore {
namespace {

struct FaceRow {
    StringView family;
    StringView face;
    std::uint32_t traits;
    int weight;
};

constexpr std::array kFaces{
    FaceRow{u"Sans", u"Regular", 0, 5},
    FaceRow{u"Sans", u"Bold", kFontBold, 9},
    FaceRow{u"Sans", u"Italic", kFontItalic, 5},
    FaceRow{u"Sans", u"Bold Italic", kFontBold | kFontItalic, 9},
    FaceRow{u"Serif", u"Regular", 0, 5},
    FaceRow{u"Serif", u"Bold", kFontBold, 9},
    FaceRow{u"Serif", u"Italic", kFontItalic, 5},
    FaceRow{u"Serif", u"Bold Italic", kFontBold | kFontItalic, 9},
    FaceRow{u"Mono", u"Regular", 0, 5},
    FaceRow{u"Mono", u"Bold", kFontBold, 9},
    FaceRow{u"Mono", u"Italic", kFontItalic, 5},
    FaceRow{u"Mono", u"Bold Italic", kFontBold | kFontItalic, 9},
    FaceRow{u"Plain", u"Regular", 0, 5},
    FaceRow{u"Heavy", u"Regular", 0, 5},
    FaceRow{u"Heavy", u"Semibold", kFontBold, 8},
    FaceRow{u"Heavy", u"Bold Italic", kFontBold | kFontItalic, 9},
    FaceRow{u"Grotesk", u"Regular", 0, 5},
    FaceRow{u"Grotesk", u"Demibold", kFontBold, 8},
    FaceRow{u"Grotesk", u"Black", kFontBold, 12},
    FaceRow{u"Grotesk", u"Oblique", kFontItalic, 5},
    FaceRow{u"Symbols", u"Regular", 0, 5},
};

using Coverage = std::vector<std::pair<char32_t, char32_t>>;

Coverage textAlone() { return {{0x0000, 0x25FF}, {0x27C0, 0xFFFF}}; }
Coverage symbolsAlone() { return {{0x2600, 0x27BF}, {0x1F000, 0x1FAFF}}; }

struct FamilyRow {
    StringView name;
    double advance;
    Coverage (*coverage)();
};

constexpr std::array kFamilies{
    FamilyRow{u"Sans", 0.5, textAlone},        FamilyRow{u"Serif", 0.4375, textAlone},
    FamilyRow{u"Mono", 0.625, textAlone},      FamilyRow{u"Plain", 0.5, textAlone},
    FamilyRow{u"Heavy", 0.5625, textAlone},    FamilyRow{u"Grotesk", 0.5, textAlone},
    FamilyRow{u"Symbols", 1.25, symbolsAlone},
};

FontMember memberOf(const FaceRow& row) {
    String joined(row.face);
    std::erase(joined, u' ');
    const String family(row.family);
    return {.uniqueName = family + u"-" + joined,
            .fullName = family == u"Plain" ? family : family + u" " + String(row.face),
            .faceName = String(row.face),
            .traits = row.traits,
            .weight = row.weight};
}

}  // namespace

std::vector<InMemoryFontFamily> inMemoryFontSelection() {
    std::vector<InMemoryFontFamily> families;
    for (const FamilyRow& row : kFamilies) {
        InMemoryFontFamily& family = families.emplace_back();
        family.name = row.name;
        family.advance = row.advance;
        family.coverage = row.coverage();
        for (const FaceRow& face : kFaces) {
            if (face.family == row.name) family.members.push_back(memberOf(face));
        }
    }
    return families;
}

}  // namespace QZCore
