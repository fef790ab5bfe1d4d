#include "QZCore/platform/fonts.h"
#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/rich_text.h"
#include "support/font_scope.h"
#include "support/printing.h"

namespace QZCore {
namespace {

TextAttributes paragraph(double indent) {
    ParagraphStyle style;
    style.headIndent = indent;
    return {{NSParagraphStyleAttributeName, Value::boxed(style)}};
}

/// The head indent at each unit; '-' without a paragraph style.
std::string indents(const RichText& text) {
    std::string all(text.length(), '-');
    for (std::size_t i = 0; i < all.size(); ++i) {
        const TextAttributes attributes = text.attributesAtIndex(i);
        if (const ParagraphStyle* style = attributes.paragraphStyle())
            all[i] = static_cast<char>('0' + static_cast<int>(style->headIndent));
    }
    return all;
}

}  // namespace

TEST_CASE("a paragraph takes the style of its first character") {
    const testing::MadeUpFonts fonts;
    struct Row {
        const char* why;
        StringView text;
        std::vector<std::pair<Range, double>> styles;
        const char* expected;
    };
    const Row rows[] = {
        {"the rest of the paragraph follows", u"ab\ncd", {{{0, 1}, 1}, {{1, 4}, 2}}, "11122"},
        {"a change at the paragraph's start stays", u"a\nb", {{{0, 2}, 1}, {{2, 1}, 2}}, "112"},
        {"a style that starts inside is lost", u"ab\ncd", {{{1, 1}, 1}}, "-----"},
        {"two units are one end", u"a\r\nb", {{{0, 2}, 1}, {{2, 2}, 2}}, "1112"},
        {"a carriage return alone ends", u"a\rb", {{{0, 2}, 1}, {{2, 1}, 2}}, "112"},
        {"a line separator does not end", u"a\u2028b", {{{0, 2}, 1}, {{2, 1}, 2}}, "111"},
        {"a paragraph separator ends", u"a\u2029b", {{{0, 2}, 1}, {{2, 1}, 2}}, "112"},
        {"styles that alternate", u"abcde", {{{0, 1}, 1}, {{2, 1}, 2}, {{4, 1}, 3}}, "11111"},
        {"empty paragraphs", u"\n\na", {{{0, 1}, 1}, {{1, 1}, 2}, {{2, 1}, 3}}, "123"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        RichText text(row.text);
        for (const auto& [range, indent] : row.styles) text.addAttributes(paragraph(indent), range);
        text.fixAttributesInRange({0, text.length()});
        CHECK(indents(text) == row.expected);
    }
}

TEST_CASE("closing a batch fixes the paragraphs that were changed and no others") {
    const testing::MadeUpFonts fonts;
    RichText text(u"aa\nbb\ncc\ndd\nee");
    text.addAttributes(paragraph(1), {1, 1});
    text.addAttributes(paragraph(1), {13, 1});
    text.beginEditing();
    {
        const RichTextEditing editing(text);
        for (const std::size_t at : {3U, 9U, 6U}) text.addAttributes(paragraph(2), {at, 1});
    }
    CHECK(indents(text) == "-1-2--2--2---1");
    text.endEditing();
    CHECK(indents(text) == "-1-222222222-1");
}

TEST_CASE("fonts and attachments stay where their characters are") {
    const testing::MadeUpFonts fonts;
    const Font font = FontManager::shared().userFont(14);
    // A thumb with a skin tone and a variation selector, then a tone alone.
    RichText text(u"ab\U0001F44D\U0001F3FD\uFE0Fc\u0301d\U0001F3FD",
                  {{NSFontAttributeName, Value::boxed(font)}});
    text.fixAttributesInRange({0, 1});
    CHECK(text.numberOfRuns() == 4);
    const TextRun emoji = text.runAtIndex(2);
    CHECK(emoji.range == Range{2, 5});
    CHECK(emoji.attributes.font()->familyName == u"Symbols");
    CHECK(emoji.attributes.font()->pointSize == 14);
    CHECK(*text.attributesAtIndex(8).font() == font);
    CHECK(text.attributesAtIndex(10).font()->familyName == u"Symbols");

    const TextAttributes plain{{u"mark", 1}};
    const TextAttributes attached =
        plain.withAttribute(NSAttachmentAttributeName, Value::boxed(TextAttachment{}));
    text = RichText(u"a\uFFFCb", attached);
    text.fixAttributesInRange({0, 3});
    CHECK(text.attributesAtIndex(0) == plain);
    CHECK(text.attributesAtIndex(1) == attached);
    CHECK(text.attributesAtIndex(2) == plain);
}

}  // namespace QZCore
