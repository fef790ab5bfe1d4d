#include "QZCore/richtext/rich_text.h"

#include <cmath>
#include <random>
#include <thread>

#include "richtext/attribute_palette.h"
#include "support/printing.h"
#include "support/rich_text_twin.h"

namespace QZCore {
namespace {

using testing::RichTextTwin;

TextAttributes mark(int number) {
    return number == 0 ? TextAttributes() : TextAttributes{{u"mark", number}};
}

}  // namespace

TEST_CASE("random edits give what a unit-by-unit twin gives") {
    // Long enough that pieces divide and join, short enough for the twin.
    std::mt19937 random(7);
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    RichText text;
    RichTextTwin twin;
    RichText other(u"other", mark(3));
    for (int step = 0; step < 3000; ++step) {
        CAPTURE(step);
        const std::size_t at = below(twin.text.size() + 10);
        const std::size_t most = below(20) == 0 ? 9000 : 40;
        const Range range{at, below(most)};
        const TextAttributes attributes = mark(step % 4);
        switch (below(7)) {
            case 0:
            case 1: {
                const String added(below(most), static_cast<char16_t>(u'a' + step % 26));
                const Range replaced{at, step % 3 == 0 ? 0 : range.length};
                text.replaceCharactersInRange(replaced, added);
                twin.replace(replaced, added);
                break;
            }
            case 2:
                text.setAttributes(attributes, range);
                twin.change(range, [&](const TextAttributes&) { return attributes; });
                break;
            case 3:
                text.addAttribute(u"extra", step % 3, range);
                twin.change(range,
                            [&](const auto& old) { return old.withAttribute(u"extra", step % 3); });
                break;
            case 4:
                if (below(4) == 0) other = text.attributedSubstringFromRange(range);
                text.replaceCharactersInRange({at, 3}, other);
                twin.replace({at, 3}, other);
                break;
            case 5:
                text.addAttributes(attributes, range);
                twin.change(range, [&](const auto& old) { return old.mergedWith(attributes); });
                break;
            default:
                text.removeAttribute(u"extra", range);
                twin.change(range, [](const auto& old) { return old.withoutAttribute(u"extra"); });
        }
        if (step % 50 == 0) REQUIRE(twin.matches(text));
        if (twin.text.size() > 60000) {
            text.deleteCharactersInRange({100, 55000});
            twin.replace({100, 55000}, u"");
        }
    }
    REQUIRE(twin.matches(text));
}

TEST_CASE("a copy keeps what it had, and equality sees text and attributes") {
    RichText text(String(10000, u'a'), mark(1));
    const RichText copy = text;
    CHECK(copy == text);
    text.addAttribute(u"mark", 2, {5000, 1});
    CHECK(copy != text);
    CHECK(copy.numberOfRuns() == 1);
    CHECK(text.numberOfRuns() == 3);
    text.addAttribute(u"mark", 1, {5000, 1});
    CHECK(copy == text);
    text.replaceCharactersInRange({0, 1}, text);  // into itself
    CHECK(text.length() == 19999);
    RichText moved = std::move(text);
    CHECK(text.empty());
    CHECK(moved.length() == 19999);
    CHECK(RichText(u"a", mark(1)) != RichText(u"a", mark(2)));
    CHECK(RichText(u"a", mark(1)) != RichText(u"b", mark(1)));
}

TEST_CASE("a value's longest range is told within the range asked about") {
    RichText text(String(9000, u'a'), mark(1));
    text.addAttribute(u"extra", 5, {4000, 100});
    const auto whole = text.attributeAtIndex(u"mark", 4050);
    CHECK(whole.range == Range{0, 9000});
    const auto part = text.attributeAtIndex(u"extra", 4050);
    CHECK(part.value == Value(5));
    CHECK(part.range == Range{4000, 100});
    CHECK(text.attributeAtIndex(u"extra", 10, {5, 100}).range == Range{5, 100});
    CHECK(text.attributeAtIndex(u"extra", 9000).range.length == 0);
    CHECK(text.runAtIndex(8999).range == Range{4100, 4900});
}

TEST_CASE("equal attribute sets are one, and sets that nobody has are forgotten") {
    const Value array = Array{1, u"x"};
    CHECK(TextAttributes{{u"b", array}, {u"a", 1}} ==
          TextAttributes{{u"a", 1}, {u"b", Array{1, u"x"}}});
    CHECK(TextAttributes{{u"a", 1}, {u"a", 2}} == TextAttributes{{u"a", 2}});
    CHECK(TextAttributes{{u"a", Value()}}.empty());
    CHECK(TextAttributes{{u"a", Value::boxed(Color::whiteColor())}} !=
          TextAttributes{{u"a", Value::boxed(Color::colorWithCalibratedWhite(1, 1))}});
    CHECK(TextAttributes{{u"a", NAN}} == TextAttributes{{u"a", -NAN}});
    AttributePalette palette;
    CHECK(palette.idOf(mark(1)) == 0);
    palette.keepOnly({false});
    const std::uint32_t plain = palette.idOf(mark(0));
    CHECK(palette.idOf(mark(2)) != plain);
    RichText text(String(5000, u'a'));
    for (int i = 0; i < 20000; ++i)
        text.addAttribute(u"n", i, {static_cast<std::size_t>(i) % 5000, 1});
    CHECK(text.numberOfRuns() == 5000);
    CHECK(text.attributesAtIndex(4999).objectForKey(u"n") == Value(19999));
    CHECK(text.attributesAtIndex(0).objectForKey(u"n") == Value(15000));

    std::vector<std::thread> threads(4);
    for (std::thread& thread : threads) {
        thread = std::thread([] {
            for (int i = 0; i < 20000; ++i) {
                const TextAttributes one{{u"shared", i % 3}};
                if (one.objectForKey(u"shared") != Value(i % 3)) std::abort();
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
}

TEST_CASE("link formatting goes away with the link") {
    const TextAttributes linked{{NSLinkAttributeName, URL{u"x:y"}},
                                {NSForegroundColorAttributeName, 1},
                                {NSUnderlineStyleAttributeName, 1},
                                {u"mark", 1}};
    CHECK(linked.textAttributesByRemovingLinkAttributes() == mark(1));
    const TextAttributes plain = linked.withoutAttribute(NSLinkAttributeName);
    CHECK(plain.textAttributesByRemovingLinkAttributes() == plain);
}

}  // namespace QZCore
