#include "QZCore/richtext/font_attributes.h"
#include "support/color_printing.h"
#include "support/font_scope.h"
#include "support/printing.h"
#include "support/random_rich_text.h"

namespace QZCore {
namespace {

struct Part {
    StringView text;
    TextAttributes attributes;
};

RichText textOf(const std::vector<Part>& parts) {
    RichText text;
    for (const Part& part : parts) {
        text.appendAttributedString(RichText(part.text, part.attributes));
    }
    return text;
}

Value color(StringView name) { return Value::boxed(*Color::colorForString(name)); }

TextAttributes colored(StringView name) { return {{NSForegroundColorAttributeName, color(name)}}; }

Font font(StringView face, double size = 12) {
    return *FontManager::shared().fontNamed(face, size);
}

TextAttributes inFont(StringView face, double size = 12) {
    return {{NSFontAttributeName, Value::boxed(font(face, size))}};
}

TextAttributes styled(TextAlignment alignment, double least, double most) {
    return {{NSParagraphStyleAttributeName,
             Value::boxed(ParagraphStyle{
                 .alignment = alignment, .minimumLineHeight = least, .maximumLineHeight = most})}};
}

Value common(const std::vector<Part>& parts, StringView name) {
    return textOf(parts).commonAttributes()->objectForKey(name);
}

}  // namespace

TEST_CASE("a text of one run has its attributes in common, and what inspectors ask for") {
    const testing::MadeUpFonts fonts;
    CHECK_FALSE(RichText().commonAttributes());
    const TextAttributes own = inFont(u"Mono-Bold", 9);
    const TextAttributes shown =
        own.mergedWith({{NSFontFamilyAttribute, u"Mono"},
                        {kQZFontAttributesSize, 9},
                        {NSForegroundColorAttributeName, color(u"black")}});
    CHECK(textOf({{u"a", own}}).commonAttributes() == shown);
    const TextAttributes defaultColor =
        own.withAttribute(NSForegroundColorAttributeName, Value::boxed(Color::textColor()));
    CHECK(textOf({{u"a", defaultColor}}).commonAttributes() == shown);
    const RichText link = RichText::hyperlinkFromString(u"l", u"u", std::nullopt, true);
    CHECK(textOf({{u"a", own}, {u"b", link.attributesAtIndex(0)}}).commonAttributes() !=
          std::nullopt);
    RichText withLink = textOf({{u"a", colored(u"red")}});
    withLink.appendLinkedString(u"b", u"u", std::nullopt, true);
    CHECK(withLink.commonAttributes() == colored(u"red"));
}

TEST_CASE("the common font is what family, size, traits and weight agree on") {
    const testing::MadeUpFonts fonts;
    struct Row {
        const char* why;
        std::vector<Part> parts;
        std::optional<Font> font;
        Value size;
    };
    const TextAttributes red = colored(u"red");
    const auto mixed = [&](const TextAttributes& a, const TextAttributes& b) {
        return std::vector<Part>{{u"a", a}, {u"b", b}, {u"c", a}};
    };
    const Row rows[] = {
        {"one font",
         mixed(inFont(u"Sans-Bold"), inFont(u"Sans-Bold").mergedWith(red)),
         font(u"Sans-Bold"),
         {}},
        {"traits differ",
         mixed(inFont(u"Sans-Regular"), inFont(u"Sans-Bold")),
         font(u"Sans-Regular"),
         {}},
        {"bold throughout",
         mixed(inFont(u"Sans-Bold"), inFont(u"Sans-BoldItalic")),
         font(u"Sans-Regular"),
         {}},
        {"weights differ, slanted both",
         mixed(inFont(u"Grotesk-Black"), inFont(u"Grotesk-Demibold")),
         font(u"Grotesk-Demibold"),
         {}},
        {"sizes differ", mixed(inFont(u"Sans-Bold"), inFont(u"Sans-Bold", 9)), std::nullopt, {}},
        {"families differ", mixed(inFont(u"Sans-Bold", 9), inFont(u"Mono-Bold", 9)), std::nullopt,
         9},
        {"no font in one run", mixed(inFont(u"Sans-Bold"), {}), std::nullopt, {}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const Value expected = row.font ? Value::boxed(*row.font) : Value();
        CHECK(common(row.parts, NSFontAttributeName) == expected);
        CHECK(common(row.parts, kQZFontAttributesSize) == row.size);
    }
}

TEST_CASE("the common colour covers all, or more than half, or else the fewest characters") {
    const testing::MadeUpFonts fonts;
    struct Row {
        const char* why;
        std::vector<Part> parts;
        Value color;
    };
    const TextAttributes none;
    const TextAttributes red = colored(u"red");
    const TextAttributes blue = colored(u"blue");
    const TextAttributes green = colored(u"green");
    const TextAttributes marked = red.withAttribute(u"mark", 1);
    const auto in = [](const Value& color) {
        return TextAttributes{{NSForegroundColorAttributeName, color}};
    };
    const Value device = Value::boxed(Color::colorWithDeviceRed(1, 0, 0, 1));
    const Value nearly = Value::boxed(Color::colorWithDeviceRed(1, 0.0001, 0, 1));
    const Value defaultColor = Value::boxed(Color::textColor());
    const Row rows[] = {
        {"all", {{u"a", red}, {u"b", marked}}, color(u"red")},
        {"11 of 20", {{u"bbbbbb", blue}, {u"rrrrrrrrrrr", red}, {u"ggg", green}}, color(u"red")},
        {"10 of 20", {{u"rrrrrrrrrr", red}, {u"bbbbbb", blue}, {u"gggg", green}}, color(u"green")},
        {"2 of 3, summed up", {{u"r", red}, {u"b", blue}, {u"r", marked}}, color(u"red")},
        {"absent is black", {{u"aa", none}, {u"r", red}}, color(u"black")},
        {"a tie takes the first", {{u"b", blue}, {u"r", red}}, color(u"blue")},
        {"printed alike", {{u"r", in(device)}, {u"b", blue}, {u"r", in(nearly)}}, nearly},
        {"the default colour throughout stays",
         {{u"a", in(defaultColor)}, {u"b", in(defaultColor).withAttribute(u"mark", 1)}},
         defaultColor},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(common(row.parts, NSForegroundColorAttributeName) == row.color);
    }
}

TEST_CASE("the common paragraph style is what alignment and line height agree on") {
    const testing::MadeUpFonts fonts;
    constexpr auto kLeft = TextAlignment::Left;
    constexpr auto kRight = TextAlignment::Right;
    const auto commonOf = [](const TextAttributes& a, const TextAttributes& b) {
        return common({{u"a", a}, {u"b", b}}, NSParagraphStyleAttributeName);
    };
    const auto style = [](TextAlignment alignment, double height) {
        return *styled(alignment, height, height).find(NSParagraphStyleAttributeName);
    };
    CHECK(commonOf(styled(kLeft, 9, 7), styled(kLeft, 9, 8)) == style(kLeft, 9));
    CHECK(commonOf(styled(kLeft, 9, 7), styled(kLeft, 8, 7)) == style(kLeft, 0));
    CHECK(commonOf(styled(kLeft, 9, 7), styled(kRight, 9, 7)) == style(TextAlignment::Natural, 9));
    CHECK(commonOf(styled(kLeft, 0, 7), styled(kRight, 0, 7)).isAbsent());
    CHECK(commonOf(styled(TextAlignment::Natural, 9, 9), {}) == style(TextAlignment::Natural, 0));
    const TextAttributes own = styled(kLeft, 9, 7);
    CHECK(commonOf(own, own.withAttribute(u"mark", 1)) == *own.find(NSParagraphStyleAttributeName));
}

TEST_CASE("traits can be had by one font, and are had unless one lacks them behind") {
    const testing::MadeUpFonts fonts;
    struct Row {
        const char* why;
        std::vector<StringView> faces;
        std::uint32_t trait;
        bool can;
        bool has;
    };
    const Row rows[] = {
        {"plain, bold", {u"Sans-Regular", u"Sans-Bold"}, kFontBold, true, true},
        {"bold, plain", {u"Sans-Bold", u"Sans-Regular"}, kFontBold, true, false},
        {"plain, bold, bold italic",
         {u"Sans-Regular", u"Sans-Bold", u"Sans-BoldItalic"},
         2,
         true,
         true},
        {"a family without the face does not count",
         {u"Sans-Bold", u"Heavy-Regular"},
         2,
         true,
         true},
        {"no family with the face", {u"Heavy-Semibold", u"Plain-Regular"}, 2, false, false},
        {"italic", {u"Sans-Regular", u"Sans-Italic", u"Mono-Bold"}, kFontItalic, true, false},
        {"no trait of one bit", {u"Sans-BoldItalic"}, 3, false, false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        RichText text;
        for (const StringView face : row.faces) {
            text.appendAttributedString(RichText(u"ab", inFont(face)));
        }
        CHECK(text.canApplyTrait(row.trait) == row.can);
        CHECK(text.doesHaveTrait(row.trait) == row.has);
        CHECK_FALSE(text.canApplyTrait(row.trait, {text.length(), 0}));
        CHECK_FALSE(text.doesHaveTrait(row.trait, kNotFoundRange));
    }
    const RichText heavy(u"a", inFont(u"Heavy-Semibold"));
    CHECK(heavy.doesHaveTrait(kFontBold, {0, 0}));  // the font at the place, whatever its family
    CHECK_FALSE(heavy.canApplyTrait(kFontBold, {0, 0}));
}

TEST_CASE("questions about a whole text") {
    const testing::MadeUpFonts fonts;
    const RichText empty;
    CHECK(empty.hasSameFontAndSize());
    CHECK(empty.hasSameTextColor());
    CHECK_FALSE(empty.containsTextBlocksOrLists());
    CHECK_FALSE(empty.containsWritingDirection());

    const TextAttributes sans = inFont(u"Sans-Regular");
    CHECK(textOf({{u"a", sans}, {u"b", inFont(u"Sans-Bold")}}).hasSameFontAndSize());
    CHECK_FALSE(textOf({{u"a", sans}, {u"b", inFont(u"Mono-Regular")}}).hasSameFontAndSize());
    CHECK_FALSE(textOf({{u"a", sans}, {u"b", inFont(u"Sans-Bold", 9)}}).hasSameFontAndSize());
    CHECK_FALSE(textOf({{u"a", sans}, {u"b", {}}}).hasSameFontAndSize());
    const TextAttributes emoji = {
        {NSFontAttributeName, Value::boxed(Font{.faceName = u"AppleColorEmoji", .pointSize = 30})}};
    const RichText smiling = textOf({{u"a", sans}, {u":", emoji}});
    CHECK(smiling.containsAppleColorEmoji());
    CHECK(smiling.hasSameFontAndSize());

    const Value device = Value::boxed(Color::colorWithDeviceRed(0, 0, 0, 1));
    CHECK(textOf({{u"a", sans},
                  {u"b", {{NSForegroundColorAttributeName, Value::boxed(Color::textColor())}}},
                  {u"c", {{NSForegroundColorAttributeName, device}}}})
              .hasSameTextColor());
    CHECK_FALSE(textOf({{u"a", sans}, {u"b", colored(u"red")}}).hasSameTextColor());

    const auto paragraph = [](const ParagraphStyle& style) {
        return textOf({{u"a", {}}, {u"b", {{NSParagraphStyleAttributeName, Value::boxed(style)}}}});
    };
    CHECK(paragraph({.textLists = {{u"{disc}"}}}).containsTextBlocksOrLists());
    CHECK(paragraph({.textBlocks = {TextBlock{}}}).containsTextBlocksOrLists());
    CHECK_FALSE(paragraph({}).containsTextBlocksOrLists());
    CHECK(paragraph({.baseWritingDirection = WritingDirection::LeftToRight})
              .containsWritingDirection());
    CHECK_FALSE(paragraph({}).containsWritingDirection());
    CHECK(RichText(u"a", {{NSWritingDirectionAttributeName, Array{2}}}).containsWritingDirection());
}

}  // namespace QZCore
