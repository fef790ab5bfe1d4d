#include "support/color_printing.h"
#include "support/font_scope.h"
#include "support/printing.h"
#include "support/random_rich_text.h"

namespace QZCore {
namespace {

const Color kRed = *Color::colorForString(u"red");
const Color kBlue = *Color::colorForString(u"blue");
const Value kTarget = u"https://example.org";

Value color(const Color& color) { return Value::boxed(color); }

/// Where the attributes beside [start, end) are read.
std::optional<std::size_t> neighbourOf(const RichText& text, Range range) {
    if (range.location > 0) return range.location - 1;
    if (range.end() + 1 < text.length()) return range.end();
    return std::nullopt;
}

void takeOver(RichText& text, StringView name, Range range, std::optional<std::size_t> from) {
    const Value value = from ? text.attributesAtIndex(*from).objectForKey(name) : Value();
    text.removeAttribute(name, range);
    if (!value.isAbsent()) text.addAttribute(name, value, range);
}

/// Run by run on the text itself, as the rule is told.
void removeLinksOneByOne(RichText& text) {
    for (std::size_t at = 0; at < text.length();) {
        const TextRun run = text.runAtIndex(at);
        const Range range{at, run.range.end() - at};
        at = range.end();
        if (run.attributes.link() == nullptr) continue;
        const auto from = neighbourOf(text, range);
        const TextAttributes beside = from ? text.attributesAtIndex(*from) : TextAttributes();
        text.removeAttribute(NSLinkAttributeName, range);
        takeOver(text, NSForegroundColorAttributeName, range, from);
        takeOver(text, NSUnderlineStyleAttributeName, range, from);
    }
}

void removeEmojiFontsOneByOne(RichText& text) {
    for (std::size_t at = 0; at < text.length();) {
        // From the start of the run, which may have grown by the one before.
        const auto run = text.attributeAtIndex(NSFontAttributeName, at);
        at = run.range.end();
        const Font* font = run.value.boxedValue<Font>();
        if (font == nullptr || font->faceName != u"AppleColorEmoji") continue;
        takeOver(text, NSFontAttributeName, run.range, neighbourOf(text, run.range));
    }
}

}  // namespace

TEST_CASE("links and emoji fonts give way to what stands beside them, run by run") {
    const testing::MadeUpFonts fonts;
    testing::RandomRichTexts texts(1);
    for (int i = 0; i < 3000; ++i) {
        CAPTURE(i);
        const RichText text = texts.next();
        RichText literal = text;
        RichText swept = text;
        removeLinksOneByOne(literal);
        swept.removeFormattingForLinksIncludingColor(false, false, false);
        REQUIRE(swept == literal);
        REQUIRE_FALSE(swept.containsLinks());
        removeEmojiFontsOneByOne(literal);
        swept.removeAppleColorEmoji();
        REQUIRE(swept == literal);
        REQUIRE_FALSE(swept.containsAppleColorEmoji());
        REQUIRE(swept.string() == text.string());
    }
}

TEST_CASE("a hyperlink has a link, an underline style, and a colour when it is given one") {
    struct Row {
        std::optional<Color> given;
        Value color;
    };
    const Row rows[] = {{kRed, color(kRed)}, {std::nullopt, {}}, {Color::clearColor(), {}}};
    for (const Row& row : rows) {
        RichText text(u"see ");
        text.appendLinkedString(u"this", kTarget, row.given, false);
        const TextAttributes expected{{NSLinkAttributeName, kTarget},
                                      {NSUnderlineStyleAttributeName, 0},
                                      {NSForegroundColorAttributeName, row.color}};
        CHECK(text.attributesAtIndex(4) == expected);
        CHECK(text.attributesAtIndex(3) == TextAttributes());
        CHECK(text.attributedSubstringFromRange({4, 4}).urlLink() == kTarget);
        CHECK(text.urlLink().isAbsent());
    }
    CHECK(RichText().urlLink().isAbsent());
}

TEST_CASE("formatting links sets their colour or takes that of their underline") {
    const TextAttributes before{{NSLinkAttributeName, kTarget},
                                {NSForegroundColorAttributeName, color(kRed)},
                                {NSUnderlineColorAttributeName, color(kRed)}};
    RichText text(u"link", before);
    text.appendString(u" and text");
    const auto formatted = [&](const std::optional<Color>& with) {
        const RichText result = text.stringByAddingFormattingForLinksWithColor(with, true);
        CHECK(result.attributesAtIndex(4) == TextAttributes());
        return result.attributesAtIndex(0);
    };
    const TextAttributes underlined = before.withAttribute(NSUnderlineStyleAttributeName, 1);
    CHECK(formatted(kBlue) ==
          underlined.withAttribute(NSForegroundColorAttributeName, color(kBlue)));
    CHECK(formatted(std::nullopt) == underlined.withoutAttribute(NSUnderlineColorAttributeName));
    CHECK(formatted(Color::clearColor()) == formatted(std::nullopt));
}

TEST_CASE("a colour is replaced wherever it prints the same") {
    const Color given = Color::colorWithDeviceRed(1, 0, 0, 1);
    const Color alike = Color::colorWithDeviceRed(1, 0.0001, 0, 1);
    const auto replaced = [&](const Value& own, const std::optional<Color>& with) {
        RichText text(u"a", {{NSForegroundColorAttributeName, own}});
        text.replaceTextForegroundColor(given, with);
        return text.attributesAtIndex(0).objectForKey(NSForegroundColorAttributeName);
    };
    CHECK(replaced(color(alike), kBlue) == color(kBlue));
    CHECK(replaced(color(alike), std::nullopt).isAbsent());
    CHECK(replaced(color(alike), given) == color(alike));
    CHECK(replaced(color(kRed), kBlue) == color(kRed));
    CHECK(replaced({}, kBlue).isAbsent());
}

TEST_CASE("attachments, white space at the start and appended texts") {
    const RichText marked(u"m", {{u"mark", 1}});
    RichText text(u" \t\u2003\n");
    text.appendAttributedString(marked);
    text.appendString(u"\uFFFC\uFFFCb\uFFFC \n");
    text.appendFormat(u"%@-%05.1f", {u"c", -2.25});
    CHECK(text.numberOfAttachments() == 3);
    text.removeAttachments();
    text.trimWhitespace();
    CHECK(text.numberOfAttachments() == 0);
    RichText expected = marked;
    expected.appendString(u"b \nc--02.2");
    CHECK(text == expected);
    text.trimWhitespace();
    CHECK(text == expected);
}

}  // namespace QZCore
