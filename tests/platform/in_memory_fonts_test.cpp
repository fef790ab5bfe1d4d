#include <limits>

#include "QZCore/platform/fonts.h"
#include "support/printing.h"

namespace QZCore {
namespace {

// The selection that the header documents; tests of other subsystems rely on it.
const std::vector<String> kSelection = {
    u"Grotesk: Regular 0 5, Demibold 2 8, Black 2 12, Oblique 1 5",
    u"Heavy: Regular 0 5, Semibold 2 8, Bold Italic 3 9",
    u"Mono: Regular 0 5, Bold 2 9, Italic 1 5, Bold Italic 3 9",
    u"Plain: Regular 0 5",
    u"Sans: Regular 0 5, Bold 2 9, Italic 1 5, Bold Italic 3 9",
    u"Serif: Regular 0 5, Bold 2 9, Italic 1 5, Bold Italic 3 9",
    u"Symbols: Regular 0 5",
};

String faceOf(const std::optional<Font>& font) { return font ? font->faceName : u"none"; }

}  // namespace

TEST_CASE("the made-up selection holds the documented faces in the documented order") {
    const auto catalog = makeInMemoryFontCatalog();
    std::vector<String> lines;
    for (const String& family : catalog->availableFamilies()) {
        String line = family + u":";
        for (const FontMember& member : catalog->membersOfFamily(family)) {
            line += line.ends_with(u':') ? u" " : u", ";
            line += member.faceName + u" " + unsignedString(member.traits) + u" " +
                    unsignedString(static_cast<std::uint64_t>(member.weight));
            String joined = member.faceName;
            std::erase(joined, u' ');
            CHECK(member.uniqueName == family + u"-" + joined);
            const String full = family == u"Plain" ? family : family + u" " + member.faceName;
            CHECK(member.fullName == full);
        }
        lines.push_back(line);
    }
    CHECK(lines == kSelection);
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
        {"first family in the order given", u"Symbols-Regular", u'a', u"Sans-Regular"},
        {"beyond the basic plane", u"Sans-Regular", 0x20000, u"none"},
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
