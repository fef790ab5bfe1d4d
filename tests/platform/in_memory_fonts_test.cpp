#include <limits>

#include "QZCore/platform/fonts.h"
#include "support/printing.h"

namespace QZCore {
namespace {

struct FaceRow {
    StringView family, uniqueName, fullName, faceName;
    std::uint32_t traits;
    int weight;
};

// The selection that the header documents; tests of other subsystems rely on it.
constexpr FaceRow kSelection[] = {
    {u"Grotesk", u"Grotesk-Regular", u"Grotesk Regular", u"Regular", 0, 5},
    {u"Grotesk", u"Grotesk-Demibold", u"Grotesk Demibold", u"Demibold", 2, 8},
    {u"Grotesk", u"Grotesk-Black", u"Grotesk Black", u"Black", 2, 12},
    {u"Grotesk", u"Grotesk-Oblique", u"Grotesk Oblique", u"Oblique", 1, 5},
    {u"Heavy", u"Heavy-Regular", u"Heavy Regular", u"Regular", 0, 5},
    {u"Heavy", u"Heavy-Semibold", u"Heavy Semibold", u"Semibold", 2, 8},
    {u"Heavy", u"Heavy-BoldItalic", u"Heavy Bold Italic", u"Bold Italic", 3, 9},
    {u"Mono", u"Mono-Regular", u"Mono Regular", u"Regular", 0, 5},
    {u"Mono", u"Mono-Bold", u"Mono Bold", u"Bold", 2, 9},
    {u"Mono", u"Mono-Italic", u"Mono Italic", u"Italic", 1, 5},
    {u"Mono", u"Mono-BoldItalic", u"Mono Bold Italic", u"Bold Italic", 3, 9},
    {u"Plain", u"Plain-Regular", u"Plain", u"Regular", 0, 5},
    {u"Sans", u"Sans-Regular", u"Sans Regular", u"Regular", 0, 5},
    {u"Sans", u"Sans-Bold", u"Sans Bold", u"Bold", 2, 9},
    {u"Sans", u"Sans-Italic", u"Sans Italic", u"Italic", 1, 5},
    {u"Sans", u"Sans-BoldItalic", u"Sans Bold Italic", u"Bold Italic", 3, 9},
    {u"Serif", u"Serif-Regular", u"Serif Regular", u"Regular", 0, 5},
    {u"Serif", u"Serif-Bold", u"Serif Bold", u"Bold", 2, 9},
    {u"Serif", u"Serif-Italic", u"Serif Italic", u"Italic", 1, 5},
    {u"Serif", u"Serif-BoldItalic", u"Serif Bold Italic", u"Bold Italic", 3, 9},
    {u"Symbols", u"Symbols-Regular", u"Symbols Regular", u"Regular", 0, 5},
};

String faceOf(const std::optional<Font>& font) { return font ? font->faceName : u"none"; }

}  // namespace

TEST_CASE("the made-up selection holds the documented faces in the documented order") {
    const auto catalog = makeInMemoryFontCatalog();
    std::size_t row = 0;
    for (const String& family : catalog->availableFamilies()) {
        for (const FontMember& member : catalog->membersOfFamily(family)) {
            REQUIRE(row < std::size(kSelection));
            const FaceRow& expected = kSelection[row++];
            CHECK(family == expected.family);
            CHECK(member == FontMember{String(expected.uniqueName), String(expected.fullName),
                                       String(expected.faceName), expected.traits,
                                       expected.weight});
        }
    }
    CHECK(row == std::size(kSelection));
    CHECK(catalog->userFont(9) == Font{u"Sans", u"Sans-Regular", 9, 0, 5});
}

TEST_CASE("a made-up width is the advance of the family times characters and size") {
    const auto catalog = makeInMemoryFontCatalog();
    struct Row {
        const char* why;
        StringView face;
        StringView text;
        double width;
    };
    const Row rows[] = {
        {"sans", u"Sans-Bold", u"99.", 15},
        {"serif", u"Serif-Regular", u"99.", 13.125},
        {"fixed width", u"Mono-Regular", u"99.", 18.75},
        {"a pair is one character", u"Symbols-Regular", u"\U0001F600", 12.5},
        {"joiners and selectors take no room", u"Symbols-Regular", u"\u2764\uFE0F\u200D", 12.5},
        {"control characters take no room", u"Plain-Regular", u"a\tb\n", 10},
        {"an unknown face is measured in its family", u"Mono-Nothing", u"9", 6.25},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        Font font = catalog->fontNamed(row.face, 10).value_or(Font{u"Mono", String(row.face), 10});
        CHECK(catalog->widthOfText(row.text, font) == row.width);
    }
    CHECK(catalog->widthOfText(u"9", Font{u"Missing", u"Missing", 10}) == 5);
}

TEST_CASE("made-up fonts show what the selection says, and the nearest stands in") {
    const auto catalog = makeInMemoryFontCatalog();
    struct Row {
        const char* why;
        StringView face;
        char32_t character;
        StringView substitute;
    };
    const Row rows[] = {
        {"shown by the font itself", u"Mono-Italic", u'a', u"Mono-Italic"},
        {"last before the symbols", u"Sans-Bold", 0x25FF, u"Sans-Bold"},
        {"first symbol", u"Sans-Bold", 0x2600, u"Symbols-Regular"},
        {"last symbol", u"Sans-Bold", 0x27BF, u"Symbols-Regular"},
        {"first after the symbols", u"Sans-Bold", 0x27C0, u"Sans-Bold"},
        {"emoji", u"Plain-Regular", 0x1F600, u"Symbols-Regular"},
        {"first family in the order given", u"Symbols-Regular", u'a', u"Sans-Regular"},
        {"beyond the basic plane", u"Sans-Regular", 0x20000, u"none"},
        {"attachment", u"Symbols-Regular", 0xFFFC, u"Symbols-Regular"},
        {"surrogate", u"Sans-Regular", 0xD800, u"none"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const Font font = *catalog->fontNamed(row.face, 7);
        const auto substitute = catalog->substituteFor(font, row.character);
        CHECK(faceOf(substitute) == row.substitute);
        CHECK(catalog->showsCharacter(font, row.character) == (row.face == row.substitute));
        CHECK(substitute.value_or(font).pointSize == 7);
    }
}

TEST_CASE("a made-up catalogue takes the families it is given") {
    const auto face = [](StringView name, std::uint32_t traits, int weight) {
        return FontMember{String(name), String(name), u"Face", traits, weight};
    };
    const auto catalog = makeInMemoryFontCatalog({
        {u"Empty", {}},
        {u"Wide", {face(u"W", 0, 5), face(u"WB", kFontBold, 9)}, 2, {{u'a', u'z'}}},
        {u"Wide", {face(u"Again", 0, 5)}},
        {u"Any", {face(u"I", kFontItalic, 5), face(u"B", kFontBold, 12)}},
    });
    CHECK(catalog->availableFamilies() == std::vector<String>{u"Any", u"Wide"});
    CHECK(faceOf(catalog->fontNamed(u"Again", 1)) == u"none");
    CHECK(catalog->userFont(3) == Font{u"Wide", u"W", 3, 0, 5});

    const Font bold = *catalog->fontNamed(u"WB", 3);
    CHECK(catalog->widthOfText(u"az", bold) == 12);
    CHECK(faceOf(catalog->substituteFor(bold, U'A')) == u"B");
    const Font hostile{u"Wide", u"none", 3, 0xFFFFFFFF, std::numeric_limits<int>::min()};
    CHECK(faceOf(catalog->substituteFor(hostile, U'A')) == u"I");
    CHECK(makeInMemoryFontCatalog({{u"Empty", {}}})->availableFamilies().size() == 7);
}

}  // namespace QZCore
