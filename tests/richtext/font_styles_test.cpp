#include <cmath>

#include "QZCore/richtext/font_manager.h"
#include "support/color_printing.h"
#include "support/font_scope.h"
#include "support/log_capture.h"
#include "support/preference_setting.h"

namespace QZCore {
namespace {

FontManager fonts() { return FontManager(makeInMemoryFontCatalog()); }

/// A catalogue of one family whose faces have the given names and traits.
FontManager fontsOf(const std::vector<std::pair<StringView, std::uint32_t>>& faces) {
    InMemoryFontFamily family{.name = u"F", .members = {}};
    for (const auto& [name, traits] : faces) {
        family.members.push_back({u"F-" + String(name), {}, String(name), traits});
    }
    return FontManager(makeInMemoryFontCatalog({family}));
}

}  // namespace

TEST_CASE("a style's font is its face, else a family with traits, else the user's font") {
    struct Row {
        FontAttributes style;
        StringView face;
        double size = 12;
    };
    const Row rows[] = {
        {{}, u"Sans-Regular"},
        {{{u"bold", true}, {u"italic", true}}, u"Sans-Regular"},  // they need a family
        {{{u"familyName", u"Nope,Serif,Mono"}, {u"bold", true}}, u"Serif-Bold"},
        {{{u"familyName", u"serif, Serif"}, {u"bold", u"YES"}}, u"Sans-Bold"},  // exact names
        {{{u"familyName", u"Mono"}, {u"bold", 7}, {u"italic", 1}}, u"Mono-BoldItalic"},
        {{{u"familyName", u"Plain"}, {u"bold", true}}, u"Plain-Regular"},
        {{{u"faceName", u"Sans-Bold"}, {u"familyName", u"Mono"}, {u"bold", 0}}, u"Sans-Bold"},
        {{{u"faceName", u"Nope"}, {u"familyName", u"Mono"}, {u"italic", 1}}, u"Mono-Italic"},
        {{{u"fontSize", u"14.5 pt"}}, u"Sans-Regular", 14.5},
        {{{u"fontSize", 0.1}}, u"Sans-Regular", double{0.1F}},
        {{{u"faceName", u"Mono-Bold"}, {u"fontSize", 6}}, u"Mono-Bold", 6},
        {{{u"fontSize", NAN}}, u"Sans-Regular"},
    };
    for (const Row& row : rows) {
        CAPTURE(Value(row.style));
        const TextAttributes attributes = fonts().fontAttributesFromStyle(row.style);
        CHECK(attributes.font()->faceName == row.face);
        CHECK(attributes.font()->pointSize == row.size);
        const testing::PreferenceSetting minimum(u"Style Font Size Min", 9);
        const double raised = row.size < 9 ? 9 : row.size;
        CHECK(fonts().fontAttributesFromStyle(row.style).font()->pointSize == raised);
    }
    CHECK_FALSE(fonts().fontAttributesFromStyle(std::nullopt));
}

TEST_CASE("a style gives every attribute but a clear background") {
    const testing::LogCapture log;
    const testing::PreferenceSetting hexAlpha(u"Color Hex RGBA", true);
    const auto color = [](StringView string) {
        return Value::boxed(*Color::colorForString(string));
    };
    const auto paragraph = [](TextAlignment alignment, double height) {
        return Value::boxed(ParagraphStyle{
            .alignment = alignment, .minimumLineHeight = height, .maximumLineHeight = height});
    };
    constexpr auto kNatural = TextAlignment::Natural;
    const auto check = [](const FontAttributes& style, StringView attribute, const Value& value) {
        CAPTURE(Value(style));
        CHECK(fonts().fontAttributesFromStyle(style).objectForKey(attribute) == value);
    };
    check({}, NSForegroundColorAttributeName, color(u"black"));
    check({{u"textColor", u"red"}}, NSForegroundColorAttributeName, color(u"red"));
    check({{u"textColor", u"nope"}}, NSForegroundColorAttributeName, color(u"black"));
    check({{u"textColor", 7}}, NSForegroundColorAttributeName, color(u"black"));
    constexpr StringView kKey = u"textBackgroundColor";
    check({}, NSBackgroundColorAttributeName, {});
    check({{kKey, u"red"}}, NSBackgroundColorAttributeName, color(u"red"));
    check({{kKey, u"clear"}}, NSBackgroundColorAttributeName, {});
    check({{kKey, u"rgb(0,0,0,0)"}}, NSBackgroundColorAttributeName, {});
    const StringView nearlyClear = u"rgb(0,0,0,1e-9)";
    check({{kKey, nearlyClear}}, NSBackgroundColorAttributeName, color(nearlyClear));
    check({}, NSUnderlineStyleAttributeName, 0);
    check({{u"underline", u"2"}}, NSUnderlineStyleAttributeName, 2);
    check({}, NSStrikethroughStyleAttributeName, 0);
    check({{u"strikethrough", true}}, NSStrikethroughStyleAttributeName, 1);
    check({}, NSParagraphStyleAttributeName, paragraph(kNatural, 0));
    check({{u"horizontalAlignment", u"2"}, {u"lineHeight", u"20"}}, NSParagraphStyleAttributeName,
          paragraph(TextAlignment::Center, 20));
    check({{u"horizontalAlignment", 5}, {u"lineHeight", NAN}}, NSParagraphStyleAttributeName,
          paragraph(kNatural, 0));
    check({{u"horizontalAlignment", -1}}, NSParagraphStyleAttributeName, paragraph(kNatural, 0));
}

TEST_CASE("attributes are stored under the keys of what they hold, and read back") {
    CHECK(fonts().styleForAttributes({}) == FontAttributes());
    const auto stored = [](const ParagraphStyle& paragraph) {
        return fonts().styleForAttributes(
            {{NSBackgroundColorAttributeName, Value::boxed(Color::clearColor())},
             {NSForegroundColorAttributeName, Value::boxed(Color::textColor())},
             {NSParagraphStyleAttributeName, Value::boxed(paragraph)}});
    };
    const FontAttributes black{{u"textColor", u"#000000"}, {u"horizontalAlignment", 1}};
    CHECK(stored({.alignment = TextAlignment::Right}) == black);
    CHECK(stored({.alignment = TextAlignment::Right, .minimumLineHeight = 20}) == black);
    const FontAttributes style{{u"faceName", u"Mono-Bold"},
                               {u"familyName", u"Mono"},
                               {u"fontSize", 9.5},
                               {u"bold", true},
                               {u"italic", false},
                               {u"textColor", u"darkGray"},
                               {u"textBackgroundColor", u"rgb(1,2,3,0.500000)"},
                               {u"underline", 1},
                               {u"strikethrough", 2},
                               {u"horizontalAlignment", 2},
                               {u"lineHeight", 20}};
    TextAttributes attributes = fonts().fontAttributesFromStyle(style);
    attributes = attributes.withAttribute(
        NSForegroundColorAttributeName, Value::boxed(Color::colorWithCalibratedWhite(1.0 / 3, 1)));
    CHECK(fonts().styleForAttributes(attributes) == style);
}

TEST_CASE("a font can have a trait when a face has one of its plain names") {
    struct Row {
        StringView face;
        std::uint32_t trait;
        bool canHave;
    };
    const Row rows[] = {
        {u"Bold", 2, true},      {u"Black", 2, true},   {u"Demibold", 2, true},
        {u"Semibold", 2, false}, {u"bold", 2, false},   {u"Bold Italic", 2, false},
        {u"Italic", 1, true},    {u"Oblique", 1, true}, {u"Bold Italic", 1, false},
        {u"Bold", 1, false},     {u"Italic", 3, false}, {u"Bold", 4, false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.face);
        const FontManager manager = fontsOf({{u"Regular", 0}, {row.face, 3}});
        CHECK(manager.canFont(manager.userFont(12), row.trait) == row.canHave);
    }
    CHECK_FALSE(fonts().canFont({.familyName = u"Nope"}, kFontBold));
}

TEST_CASE("conversions take the nearest face, or leave the font as it is") {
    const FontManager manager = fonts();
    const auto font = [&](StringView name) { return *manager.fontNamed(name, 10); };
    const Font black = font(u"Grotesk-Black");
    CHECK(manager.convertFontToFamily(black, u"Heavy") == font(u"Heavy-Semibold"));
    CHECK(manager.convertFontToFamily(black, u"Nope") == black);
    const FontManager slanted = fontsOf({{u"Regular", 0}, {u"Italic", kFontItalic}});
    CHECK(slanted.convertFontToFamily(font(u"Sans-BoldItalic"), u"F").faceName == u"F-Italic");

    CHECK(manager.convertFontToHaveTrait(font(u"Sans-Regular"), kFontBold | kFontItalic) ==
          font(u"Sans-BoldItalic"));
    CHECK(manager.convertFontToHaveTrait(black, kFontUnbold) == font(u"Grotesk-Regular"));
    CHECK(manager.convertFontToHaveTrait(black, kFontItalic) == black);
    CHECK(manager.convertFontToHaveTrait(black, kFontBold) == black);
    CHECK(manager.convertFontToLighterWeight(black) == font(u"Grotesk-Demibold"));
    CHECK(manager.convertFontToLighterWeight(font(u"Grotesk-Oblique")) == font(u"Grotesk-Oblique"));
    CHECK(manager.convertFontToFace(black, u"Sans Bold") == font(u"Sans-Bold"));
    CHECK(manager.convertFontToFace(black, u"Nope") == black);
    CHECK(manager.convertFontToSize(black, 0) == black);
    CHECK(manager.convertFontToSize(black, 11).pointSize == 11);
}

}  // namespace QZCore
