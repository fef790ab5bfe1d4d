#include "QZCore/markdown/writing.h"

#include <random>

#include "QZCore/markdown/rendering.h"
#include "support/font_scope.h"
#include "support/markdown_settings.h"
#include "support/printing.h"

namespace QZCore {
namespace {

Value font(StringView face, double size = 12) {
    return Value::boxed(*FontManager::shared().fontNamed(face, size));
}

TextAttributes inFont(StringView face, double size = 12) {
    return {{NSFontAttributeName, font(face, size)}};
}

RichText joined(const std::vector<RichText>& parts) {
    RichText text;
    for (const RichText& part : parts) text.appendAttributedString(part);
    return text;
}

}  // namespace

TEST_CASE("runs are written between the markers of what they are") {
    const testing::MadeUpFonts fonts;
    const TextAttributes bold = inFont(u"Sans-Bold");
    const TextAttributes all = inFont(u"Sans-BoldItalic")
                                   .withAttribute(NSUnderlineStyleAttributeName, 1)
                                   .withAttribute(NSStrikethroughStyleAttributeName, 1);
    const RichText title(u"Title", inFont(u"Sans-Bold", 24));
    const RichText line(u"\n");
    struct Row {
        const char* why;
        RichText text;
        StringView markdown;
    };
    const Row rows[] = {
        {"nothing", RichText(), u""},
        {"plain", RichText(u"a\nb"), u"a<br>b"},
        {"all markers", RichText(u"a", all), u"***__~~a~~__***"},
        {"italic", RichText(u"a", inFont(u"Mono-Italic")), u"*a*"},
        {"double lines count as none",
         RichText(u"a",
                  {{NSUnderlineStyleAttributeName, 2}, {NSStrikethroughStyleAttributeName, 9}}),
         u"a"},
        {"a link is not underlined",
         RichText(u"a", all.withAttribute(NSLinkAttributeName, URL{u"http://b/c"})),
         u"***~~[a](http://b/c)~~***"},
        {"runs are not joined",
         joined({RichText(u"a", bold), RichText(u"b", bold.withAttribute(u"mark", 1))}),
         u"**a****b**"},
        {"a header ends with its line", joined({title, line, title}), u"## Title<br>**Title**"},
        {"other line ends", joined({RichText(u"a\u2028"), title, RichText(u"\r")}),
         u"a\u2028## Title\r"},
        {"not at the start of a line", joined({RichText(u"a"), title, line}), u"a**Title**<br>"},
        {"no header size", joined({RichText(u"a", inFont(u"Sans-Bold", 24.5)), line}),
         u"**a**<br>"},
        {"not bold", joined({RichText(u"a", inFont(u"Sans-Regular", 24)), line}), u"a<br>"},
        {"only a header", joined({RichText(u"a", inFont(u"Sans-BoldItalic", 16)), line}),
         u"#### a<br>"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(markdownString(row.text) == row.markdown);
    }
}

TEST_CASE("the preferences hold markers, header sizes, and what line feeds become") {
    const testing::MadeUpFonts fonts;
    const testing::MarkdownSettings settings(R"({"preferences": {
        "Markdown Header Sizes": "x,20", "Markdown Bold": "!\n", "Markdown Underline": "",
        "Markdown Replace New Lines with br": false}})");
    RichText text(u"a", inFont(u"Sans-Bold", 20));
    text.appendString(u"\n");
    text.appendAttributedString(
        RichText(u"b", inFont(u"Sans-Bold").withAttribute(NSUnderlineStyleAttributeName, 1)));
    CHECK(markdownString(text, settings.preferences()) == u"## a\n!\nb!\n");
}

TEST_CASE("what is rendered, written and rendered again is the same") {
    const testing::MadeUpFonts fonts;
    const testing::MarkdownSettings settings(
        R"({"preferences": {"Markdown Replace New Lines with br": false}})");
    const StringView markers[] = {u"*", u"**", u"***", u"__", u"~~", u""};
    std::mt19937 random(5);
    for (int i = 0; i < 500; ++i) {
        String markdown = i % 3 == 0 ? u"## title\n" : u"";
        for (std::size_t words = 1 + random() % 8; words > 0; --words) {
            const StringView marker = markers[random() % std::size(markers)];
            const String word = random() % 4 == 0 ? u"[one two](http://x/y)" : u"one two";
            (((markdown += u"and ") += marker) += word) += marker;
            markdown += random() % 5 == 0 ? u" end\n" : u" ";
        }
        CAPTURE(toUTF8(markdown));
        const auto rendered = [&](StringView string) {
            RichText text(string, inFont(u"Sans-Regular"));
            renderContainedMarkdownWithStyles(text, {}, settings.syntax(), settings.preferences());
            return text;
        };
        const RichText once = rendered(markdown);
        const RichText twice = rendered(markdownString(once, settings.preferences()));
        REQUIRE(twice.string() == once.string());
        REQUIRE(twice == once);
    }
}

}  // namespace QZCore
