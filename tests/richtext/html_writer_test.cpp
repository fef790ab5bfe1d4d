#include "QZCore/richtext/html.h"

#include <doctest/doctest.h>

#include <random>

#include "richtext/paragraphs.h"
#include "support/font_scope.h"
#include "support/random_texts.h"
#include "support/tag_balance.h"
#include "support/text_rows.h"
#include "tools/qznote/note.h"

namespace QZCore {
namespace {

/// What stands between <main> and </main>.
std::string bodyOf(const RichText& text, const TextAttributes& base) {
    const std::string page = toUTF8(htmlFromRichText(text, {.title = u"Note", .base = base}));
    const std::size_t start = page.find("<main>\n") + 7;
    return page.substr(start, page.find("</main>") - start);
}

std::string rendered(StringView note, const StyleSheet& styles = {}) {
    return bodyOf(qznote::renderedNote(note, styles), qznote::baseAttributes(styles));
}

/// Gives random stretches of `text` random attributes of all kinds.
void scatterAttributes(RichText& text, std::mt19937& random) {
    const FontManager fonts = FontManager::shared();
    const Font plain = fonts.userFont(12);
    ParagraphStyle indented;
    indented.headIndent = 7;
    const TextAttribute pool[] = {
        {NSFontAttributeName, Value::boxed(fonts.convertFontToHaveTrait(plain, kFontBold))},
        {NSFontAttributeName, Value::boxed(fonts.convertFontToFamily(plain, u"Mono"))},
        {NSFontAttributeName, Value::boxed(fonts.convertFontToSize(plain, 24))},
        {NSFontAttributeName, Value::boxed(Font{u"</style>'\"\\&", u"Odd"})},
        {NSBackgroundColorAttributeName, Value::boxed(Color::colorWithDeviceRed(1, 1, 0, 0.9))},
        {NSForegroundColorAttributeName, Value::boxed(Color::whiteColor())},
        {NSUnderlineStyleAttributeName, 1},
        {NSStrikethroughStyleAttributeName, 1},
        {NSLinkAttributeName, u"http://a.example/\"<&>"},
        {NSLinkAttributeName, u"javascript:x"},
        {NSParagraphStyleAttributeName, Value::boxed(indented)},
    };
    for (std::size_t i = 0; i < 6; ++i) {
        const TextAttribute& attribute = pool[random() % std::size(pool)];
        const Range range{random() % (text.length() + 1), random() % 6};
        text.addAttribute(attribute.name.text(), attribute.value, range);
    }
}

}  // namespace

TEST_CASE("any rich text becomes a well-formed page that holds the same text") {
    const testing::MadeUpFonts fonts;
    testing::RandomTexts texts(u"ab <>&\"'\t\n");
    std::mt19937 random(7);
    const TextAttributes base = qznote::baseAttributes({});
    for (int i = 0; i < 1000; ++i) {
        RichText text(texts.next(20), base);
        scatterAttributes(text, random);
        std::string expected;
        for (const Range paragraph : paragraphsOf(text.string())) {
            expected += toUTF8(text.string(paragraph)) + "\n";
        }
        const auto reading = testing::PageReader::read(bodyOf(text, base));
        REQUIRE(reading.fault == "");
        REQUIRE(reading.text == expected);
        const std::string page =
            toUTF8(htmlFromRichText(text, {.title = u"</title>&", .base = base}));
        REQUIRE(testing::PageReader::read(page).fault == "");
    }
}

TEST_CASE("constructs become the elements that mean them") {
    const testing::MadeUpFonts fonts;
    const std::string code =
        " style=\"font-family:'Mono',monospace;color:#000000;background-color:#f1f1f1;\"";
    const std::string inset = "padding-inline-start:18pt;padding-inline-end:18pt;\"";
    const testing::TextRow<std::string> rows[] = {
        {"emphasis", u"a **b** *c* __d__ ~~e~~",
         "<p>a <strong>b</strong> <em>c</em> <u>d</u> <s>e</s></p>\n"},
        {"what neighbours share stays open", u"==a **b** c==",
         "<p><mark style=\"background-color:rgba(255,255,0,0.4);\">a <strong>b</strong> "
         "c</mark></p>\n"},
        {"an empty line", u"a\n\nb", "<p>a</p>\n<p></p>\n<p>b</p>\n"},
        {"code on an opaque background", u"a `b`", "<p>a <code" + code + ">b</code></p>\n"},
        {"lines of code are one block", u"```\na\n\nb\n```\n",
         "<pre" + code +
             ">"
             "<code>a\n\nb</code></pre>\n"},
        {"headings take their look from their first run", u"### a __b__",
         "<h3 style=\"font-size:18pt;margin-top:5pt;margin-bottom:2pt;\">a <u>b</u></h3>\n"},
        {"quotations", u"> a\n> b\n",
         "<blockquote dir=\"auto\">\n"
         "<p style=\"padding-bottom:10pt;" +
             inset +
             ">a</p>\n"
             "<p style=\"margin-bottom:10pt;" +
             inset +
             ">b</p>\n"
             "</blockquote>\n"},
        {"bullets alternate", u"- a\n\t- b\n\t- c\n- d",
         "<ul dir=\"auto\">\n<li>a<ul dir=\"auto\" style=\"list-style-type:circle;\">\n"
         "<li>b</li>\n<li>c</li>\n</ul></li>\n<li>d</li>\n</ul>\n"},
        {"numbers go on behind bullets", u"1. a\n- b\n1. c\n1. d",
         "<ol dir=\"auto\">\n<li>a</li>\n</ol>\n<ul dir=\"auto\">\n<li>b</li>\n</ul>\n"
         "<ol dir=\"auto\" start=\"3\">\n<li>c</li>\n<li>d</li>\n</ol>\n"},
        {"what belongs to an item", u"- a\n\t- b\n  (c)\n> 1\n- d\n\ne",
         "<ul dir=\"auto\">\n<li>a<ul dir=\"auto\" style=\"list-style-type:circle;\">\n"
         "<li>b<p>(c)</p><blockquote dir=\"auto\">\n"
         "<p style=\"margin-bottom:10pt;" +
             inset +
             ">1</p>\n"
             "</blockquote></li>\n</ul></li>\n<li>d</li>\n</ul>\n<p></p>\n<p>e</p>\n"},
        {"control characters and unpaired surrogates", u"a\x1b\xD800z", "<p>a\uFFFD\uFFFDz</p>\n"},
    };
    testing::checkRows(rows, [](StringView note) { return rendered(note); });
}

TEST_CASE("a page names what its style sheet says of all text once") {
    const testing::MadeUpFonts fonts;
    const StyleSheet styles{
        {u"body", Dictionary{{kStyleFontColor, u"#112233"}, {kStyleBackgroundColor, u"#fff8e0"}}}};
    const RichText text = qznote::renderedNote(u"a *b*\n# c", styles);
    const TextAttributes base = qznote::baseAttributes(styles);
    const std::string page = toUTF8(htmlFromRichText(text, {.title = u"n", .base = base}));
    CHECK(page.find("color:#112233;background-color:#fff8e0;color-scheme:light;\">\n<main>") !=
          std::string::npos);
    CHECK(bodyOf(text, base) ==
          "<p>a <em>b</em></p>\n"
          "<h1 style=\"font-size:32pt;color:#000000;margin-top:5pt;margin-bottom:2pt;\">c</h1>\n");
}

TEST_CASE("only links that run nothing are followed") {
    const auto isSafe = [](StringView target) {
        return safeLink({{NSLinkAttributeName, target}}).has_value();
    };
    for (const StringView target :
         {u"http://a.example", u"HTTPS://a.example", u"mailto:a@b.example", u"file:///a",
          u"a/b.html", u"#part", u"./a:b", u"//a.example", u"?a:b"}) {
        CAPTURE(target);
        CHECK(isSafe(target));
    }
    for (const StringView target :
         {u"javascript:x", u"JavaScript:x", u" javascript:x", u"java\nscript:x",
          u"data:text/html,x", u"vbscript:x", u"\x01:javascript:x", u":x", u"blob:http://a"}) {
        CAPTURE(target);
        CHECK_FALSE(isSafe(target));
    }
}

TEST_CASE("images stand in the page with their size and description") {
    const testing::MadeUpFonts fonts;
    const auto image = std::make_shared<const Image>(Image{{'a', 'b', 'c', 'd'}, u"image/png"});
    const RichText text(u"\uFFFC", {{NSAttachmentAttributeName,
                                     Value::boxed(TextAttachment{image, 64, 48, u"\"a\"", u""})}});
    CHECK(bodyOf(text, {}) ==
          "<p><img src=\"data:image/png;base64,YWJjZA==\" alt=\"&quot;a&quot;\" "
          "style=\"width:64pt;height:48pt;\"></p>\n");
}

}  // namespace QZCore
