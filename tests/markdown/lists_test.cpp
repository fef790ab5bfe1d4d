// Lists: outlines from Markdown, and outlines as rich text. What the list pass
// makes of a note is held to its rules in rendering_law_test.cpp.
#include "QZCore/markdown/lists.h"

#include <cmath>

#include "QZCore/model/pair.h"
#include "support/font_scope.h"
#include "support/markdown_settings.h"
#include "support/text_rows.h"
#include "tools/qznote/runs_writer.h"

namespace QZCore {
namespace {

using testing::MarkdownSettings;

RichText textOf(const QZTreeNode& node) {
    return *objectIn<QZPair>(node.data())->value().boxedValue<RichText>();
}

/// The outline with a blank for each level and the marker before each item.
String printed(const QZTreeNode& node) {
    String lines;
    for (const auto& child : node.children()) {
        const bool isDisc = objectIn<QZPair>(child->data())->key().stringValue() == u"{disc}";
        lines += String(child->level() - 1, u' ') + (isDisc ? u"*" : u"#") +
                 textOf(*child).string() + u"\n" + printed(*child);
    }
    return lines;
}

}  // namespace

TEST_CASE("items lie under items that are indented less") {
    const testing::TextRow<StringView> rows[] = {
        {"no item is more than one level below the one before", u"- a\n        - b", u"*a\n *b\n"},
        {"a tab is a level, and four blanks are", u"- a\n\t- b\n    - c", u"*a\n *b\n *c\n"},
        {"three blanks are none", u"- a\n   - b", u"*a\n*b\n"},
        {"back by two levels", u"+ a\n\t1. b\n\t\t* c\n2. d", u"*a\n #b\n  *c\n#d\n"},
        {"the first item is outermost however it is indented", u"    - a\n- b", u"*a\n*b\n"},
        {"and one as deep lies under it", u"    - a\n    - b\n    - c", u"*a\n *b\n *c\n"},
        {"a letter joins the line before", u"- a\nb\n- c", u"*a b\n*c\n"},
        {"a digit and a sign do not", u"- a\n1 b\n(c)\n- d", u"*a\n*d\n"},
        {"a blank before a letter does not", u"- a\n b", u"*a\n"},
        {"not the last line feed", u"- a\n", u"*a\n"},
        {"nothing", u"", u""},
    };
    testing::checkRows(rows, [](StringView markdown) {
        return printed(*listOutlineFromMarkdown(RichText(markdown)));
    });
}

TEST_CASE("an outline is written as its Markdown is") {
    const testing::MadeUpFonts fonts;
    const TextAttributes red{
        {NSForegroundColorAttributeName, Value::boxed(Color::colorWithCalibratedRed(1, 0, 0, 1))}};
    for (const StringView markdown :
         {u"- a\n- b\n\t1. c\n\t2. d\n\t\t- e\n\t3. f\n- g",
          u"1. a\n2. b\n3. c\n4. d\n5. e\n6. f\n7. g\n8. h\n9. i\n10. j\n11. k"}) {
        RichText text(markdown, red);
        text.addAttribute(NSUnderlineStyleAttributeName, 1, {2, 1});
        RichText expected(u"before\n");
        expected.appendAttributedString(richTextListFromMarkdown(text, true, {}));
        RichText written(u"before\n");
        richTextListForNode(*listOutlineFromMarkdown(text), red, {}, true, {}, written);
        CHECK(qznote::runLines(written) == qznote::runLines(expected));
        CHECK(written == expected);
    }
}

TEST_CASE("lengths that are no numbers count as absent") {
    const testing::MadeUpFonts fonts;
    const MarkdownSettings settings("");
    const Preferences odd(Dictionary{{u"Markdown Inline Lists Marker To Text Gap", NAN},
                                     {u"Markdown Inline Lists Indentions", HUGE_VAL}});
    const RichText list(u"- a\n\t- b");
    CHECK(richTextListFromMarkdown(list, true, {}, settings.syntax(), odd) ==
          richTextListFromMarkdown(list, true, {}, settings.syntax(), settings.preferences()));
}

TEST_CASE("an item inside an outline keeps its level, its number and its lists") {
    const testing::MadeUpFonts fonts;
    const auto outline = listOutlineFromMarkdown(RichText(u"- a\n\t1. b\n\t2. c\n\t\t- d"));
    const QZTreeNode& second = *outline->firstChild()->lastChild();
    RichText written;
    richTextListForNode(second, {}, {}, false, {{u"{disc}"}}, written);
    CHECK(written.string() == u"\t2.\tc\n\t\u25CF\td\n");
    const auto style = [&](std::size_t at) {
        return *written.attributesAtIndex(at).paragraphStyle();
    };
    CHECK(style(0).textLists == TextLists{{u"{disc}"}});
    CHECK(style(6).textLists == TextLists{{u"{disc}"}, {u"{decimal}"}});
    // Three markers of 6 points, two levels of 9 and the gap of 5.
    CHECK(style(6).headIndent == 3 * 6 + 2 * 9 + 5);

    String ten;
    for (int i = 0; i < 10; ++i) ten += u"1. a\n";
    const RichText whole = richTextListFromMarkdown(RichText(ten), false, {});
    written = {};
    richTextListForNode(*listOutlineFromMarkdown(RichText(ten))->firstChild(), {}, {}, false, {},
                        written);
    CHECK(written == whole.attributedSubstringFromRange({0, written.length()}));
}

TEST_CASE("an outline as deep as there are nodes is written, in room for its nodes") {
    const auto root = QZTreeNode::treeNodeWithData({});
    auto last = root;
    constexpr int kDepth = 100000;
    for (int i = 0; i < kDepth; ++i) {
        auto next = QZTreeNode::treeNodeWithData(
            Value(QZPair::pairWithKey(kMarkdownListDisc, Value::boxed(RichText(u"x")))));
        last->addChild(next);
        last = std::move(next);
    }
    last->addChild(QZTreeNode::treeNodeWithData(u"no pair"));
    RichText written;
    richTextListForNode(*root, {}, {}, false, {}, written);
    CHECK(written.length() == kDepth * 5);
    const TextAttributes deepest = written.attributesAtIndex(written.length() - 2);
    CHECK(deepest.paragraphStyle()->textLists.size() == kDepth - 1);
}

}  // namespace QZCore
