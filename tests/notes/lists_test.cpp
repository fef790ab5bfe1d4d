// Lists in all the forms in which the command writes them.
#include <doctest/doctest.h>

#include <random>

#include "QZCore/markdown/lists.h"
#include "QZCore/model/pair.h"
#include "QZCore/richtext/html.h"
#include "support/font_scope.h"
#include "support/tag_balance.h"
#include "support/text_rows.h"
#include "tools/qznote/note.h"
#include "tools/qznote/outline_report.h"

namespace QZCore {
namespace {

std::string lineOf(std::size_t depth, const std::string& marker, const std::string& text) {
    return std::string((depth - 1) * 2, ' ') + marker + " " + text + "\n";
}

std::string bulletAt(std::size_t depth) { return depth % 2 == 1 ? "\u25CF" : "\u25E6"; }

/// The outline below `node`, an item a line.
std::string linesBelow(const QZTreeNode& node, std::size_t depth = 1) {
    std::string lines;
    std::size_t position = 0;
    for (const auto& child : node.children()) {
        const auto pair = objectIn<QZPair>(child->data());
        const bool isNumbered = pair->key().stringValue() == kMarkdownListDecimal;
        const std::string number = std::to_string(++position) + ".";
        lines += lineOf(depth, isNumbered ? number : bulletAt(depth),
                        toUTF8(pair->value().boxedValue<RichText>()->string()));
        lines += linesBelow(*child, depth + 1);
    }
    return lines;
}

/// A list of items and other lines, some of them indented.
String randomList(std::mt19937& random) {
    const StringView starts[] = {u"- ", u"* ", u"1. ", u"7. ", u"(x) ", u" ", u"2 "};
    const StringView indents[] = {u"", u"", u"\t", u"\t\t", u"    ", u"        ", u"\t\t\t\t"};
    String list = u"- a";
    const std::size_t count = random() % 12;
    for (std::size_t i = 0; i < count; ++i) {
        list += u"\n";
        list += indents[random() % std::size(indents)];
        list += starts[random() % std::size(starts)];
        list += static_cast<char16_t>(u'b' + i);
    }
    return list;
}

}  // namespace

TEST_CASE("lists nest in a page and in an outline as they do in their Markdown") {
    const testing::MadeUpFonts fonts;
    std::mt19937 random(3);
    const TextAttributes base = qznote::baseAttributes({});
    for (int i = 0; i < 1000; ++i) {
        const String list = randomList(random);
        CAPTURE(list);
        const std::string expected = linesBelow(*listOutlineFromMarkdown(RichText(list)));
        const RichText text = qznote::renderedNote(list + u"\n\nend", {});
        CHECK(qznote::outlineReport(text, base) == expected);
        const std::string page = toUTF8(htmlFromRichText(text, {.title = u"Note", .base = base}));
        const testing::PageReading reading = testing::PageReader::read(page);
        CHECK(reading.fault == "");
        CHECK(reading.items == expected);
    }
}

TEST_CASE("an outline has a title when a line stands before it") {
    const testing::MadeUpFonts fonts;
    const testing::TextRow<std::string> rows[] = {
        {"no list", u"# a\n\nb", ""},
        {"a header", u"# a\n\n- b\n\t- c", "a\n  \u25CF b\n    \u25E6 c\n"},
        {"the line before", u"a\nb\n1. c", "b\n  1. c\n"},
        {"the first list alone", u"a\n- b\n\n- c", "a\n  \u25CF b\n\n\u25CF c\n"},
        {"not a quotation", u"> a\n\n- b", "\u25CF b\n"},
        {"not code", u"```\na\n```\n- b", "\u25CF b\n"},
        {"nor a line in the list before", u"- a\n(b)\n\n- c", "\u25CF a\n\n\u25CF c\n"},
        {"marks take effect", u"a *b*\n- **c** `d`\n- \\*e", "a b\n  \u25CF c d\n  \u25CF *e\n"},
        {"what is no list", u"\t\u25CF\ta\n\\- b\n```\n- c\n```\n\n- d", "\u25CF d\n"},
        {"an image and a control character", u"- ![a|4x2](x:y)\x1b", "\u25CF [a 4x2]\u241B\n"},
    };
    testing::checkRows(rows, [](StringView note) {
        return qznote::outlineReport(qznote::renderedNote(note, {}), qznote::baseAttributes({}));
    });
}

}  // namespace QZCore
