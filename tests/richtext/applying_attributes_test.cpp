#include "QZCore/richtext/font_attributes.h"
#include "support/font_scope.h"
#include "support/printing.h"
#include "support/random_rich_text.h"

namespace QZCore {
namespace {

bool isColorApart(const Value& own, const Value& common) {
    const Color* a = own.boxedValue<Color>();
    const Color* b = common.boxedValue<Color>();
    return a != nullptr && b != nullptr && !a->isEqualByString(*b);
}

Value inTraitsOf(const Value& own, const Value& value) {
    const FontManager fonts = FontManager::shared();
    const std::uint32_t traits = own.boxedValue<Font>()->traits;
    Font font = *value.boxedValue<Font>();
    font = fonts.convertFontToHaveTrait(font, (traits & 2) != 0 ? kFontBold : kFontUnbold);
    font = fonts.convertFontToHaveTrait(font, (traits & 1) != 0 ? kFontItalic : kFontUnitalic);
    return Value::boxed(font);
}

/// Key by key and run by run on the text itself, as the rule is told.
void applyOneByOne(RichText& text, const TextAttributes& given, Range range) {
    const TextAttributes common = text.commonAttributes().value_or(TextAttributes());
    for (const auto& [attribute, value] : given.entries()) {
        const String& name = attribute.text();
        for (std::size_t at = range.location; at < range.end();) {
            const auto [own, run] = text.attributeAtIndex(name, at, range);
            const Range part{at, run.end() - at};
            at = part.end();
            if (name == kQZFontAttributesSize) {
                const RichText before = text;
                for (const TextRunView each : before.runs(part)) {
                    if (each.attributes.font() == nullptr) continue;
                    Font font = *each.attributes.font();
                    font.pointSize = value.doubleValue();
                    text.addAttribute(NSFontAttributeName, Value::boxed(font), each.range);
                }
                continue;
            }
            Value decided = value;
            if (!own.isAbsent() && part != range) {
                if (name == NSFontAttributeName) decided = inTraitsOf(own, value);
                if (name == NSUnderlineStyleAttributeName) decided = own;
                if (name == NSForegroundColorAttributeName &&
                    isColorApart(own, common.objectForKey(name))) {
                    decided = own;
                }
                if (name == NSParagraphStyleAttributeName && own != common.objectForKey(name)) {
                    decided = own;
                }
            }
            text.addAttribute(name, decided, part);
        }
    }
    const auto now = text.commonAttributes();
    if (given.find(NSBackgroundColorAttributeName) == nullptr && now &&
        now->find(NSBackgroundColorAttributeName) != nullptr) {
        text.removeAttribute(NSBackgroundColorAttributeName, range);
    }
    text.fixAttributesInRange(range);
}

}  // namespace

TEST_CASE("attributes are applied to a range as run by run") {
    const testing::MadeUpFonts fonts;
    testing::RandomRichTexts texts(2);
    for (int i = 0; i < 3000; ++i) {
        CAPTURE(i);
        RichText text = texts.next();
        RichText literal = text;
        TextAttributes given = texts.attributes();
        if (i % 3 == 0) given = given.withAttribute(kQZFontAttributesSize, 18);
        Range range{texts.below(text.length() + 1), texts.below(text.length() + 1)};
        range = i % 2 == 0 ? Range{0, text.length()} : clampedRange(range, text.length());
        text.applyFontAttributes(given, range);
        if (!given.empty() && range.length > 0) applyOneByOne(literal, given, range);
        REQUIRE(text == literal);
    }
}

TEST_CASE("applying attributes keeps the words that deviate on purpose") {
    const testing::MadeUpFonts fonts;
    const auto font = [](StringView face, double size) {
        return Value::boxed(*FontManager::shared().fontNamed(face, size));
    };
    RichText text(u"plain ", {{NSFontAttributeName, font(u"Sans-Regular", 12)}});
    text.appendAttributedString(
        RichText(u"bold", {{NSFontAttributeName, font(u"Sans-Bold", 12)},
                           {NSForegroundColorAttributeName, Value::boxed(Color::whiteColor())}}));
    const Value red = Value::boxed(*Color::colorForString(u"red"));
    text.applyFontAttributes(
        {{NSFontAttributeName, font(u"Mono-Regular", 14)}, {NSForegroundColorAttributeName, red}});
    CHECK(text.attributesAtIndex(0).objectForKey(NSFontAttributeName) == font(u"Mono-Regular", 14));
    CHECK(text.attributesAtIndex(6).objectForKey(NSFontAttributeName) == font(u"Mono-Bold", 14));
    CHECK(text.attributesAtIndex(0).objectForKey(NSForegroundColorAttributeName) == red);
    CHECK(*text.attributesAtIndex(6).foregroundColor() == Color::whiteColor());
    const RichText before = text;
    text.applyFontAttributes({{kQZFontAttributesSize, 14}});
    CHECK(text == before);
}

}  // namespace QZCore
