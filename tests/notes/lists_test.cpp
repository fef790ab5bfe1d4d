// Lists in all the forms in which the command writes them.
#include <doctest/doctest.h>

#include <random>

#include "QZCore/markdown/lists.h"
#include "QZCore/model/pair.h"
#include "support/font_scope.h"
#include "support/printing.h"
#include "support/tag_balance.h"
#include "tools/qznote/ansi_writer.h"
#include "tools/qznote/html_writer.h"
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

/// Reads the lists of a page as a person sees them, an item a line.
class PageLists {
public:
    explicit PageLists(std::string_view page) : rest_(page) {
        while (!rest_.empty()) readNext();
    }

    /// An item a line.
    std::string lines;
    /// What a list must not hold.
    std::string fault;

private:
    struct List {
        bool isNumbered;
        std::string bullet;
        std::uint64_t next;
    };

    std::string_view takeUntil(char end) {
        const std::size_t size = std::min(rest_.find(end), rest_.size());
        const std::string_view taken = rest_.substr(0, size);
        rest_.remove_prefix(size);
        return taken;
    }

    static std::uint64_t numberIn(std::string_view tag, std::string_view name,
                                  std::uint64_t otherwise) {
        const std::size_t at = tag.find(name);
        return at == tag.npos ? otherwise : std::stoull(std::string(tag.substr(at + name.size())));
    }

    void readNext() {
        const std::string_view text = takeUntil('<');
        const bool isInItem = !open_.empty() && open_.back() == "li";
        if (isInItem) lines += text;
        if (!open_.empty() && open_.back() == "list" && text.find_first_not_of('\n') != text.npos) {
            fault = text;
        }
        const std::string_view tag = takeUntil('>');
        if (rest_.empty()) return;
        rest_.remove_prefix(1);
        readTag(tag.substr(1));
    }

    void readTag(std::string_view tag) {
        const bool isInList = !open_.empty() && open_.back() == "list";
        if (tag.starts_with("/")) {
            if (open_.back() == "list") lists_.pop_back();
            open_.pop_back();
        } else if (tag.starts_with("li")) {
            if (!isInList) fault = tag;
            List& list = lists_.back();
            const std::uint64_t number = numberIn(tag, "value=\"", list.next);
            list.next = number + 1;
            endLine();
            lines += std::string((lists_.size() - 1) * 2, ' ') +
                     (list.isNumbered ? std::to_string(number) + "." : list.bullet) + " ";
            open_.push_back("li");
        } else {
            if (isInList) fault = tag;
            const bool isList = tag.starts_with("ul ") || tag.starts_with("ol ");
            if (isList) {
                const bool isOpen = tag.find("circle") != tag.npos;
                lists_.push_back({tag.starts_with("ol"), isOpen ? "\u25E6" : "\u25CF",
                                  numberIn(tag, "start=\"", 1)});
            }
            open_.push_back(isList ? "list" : "other");
        }
        if (lists_.empty()) endLine();
    }

    void endLine() {
        if (!lines.empty() && lines.back() != '\n') lines += '\n';
    }

    std::string_view rest_;
    std::vector<std::string> open_;
    std::vector<List> lists_;
};

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
        const std::string page = qznote::htmlPage(text, {.title = u"Note", .base = base});
        CHECK(testing::PageReader::read(page).fault == "");
        const std::size_t start = page.find("<main>");
        const PageLists lists(std::string_view(page).substr(start, page.find("</body>") - start));
        CHECK(lists.fault == "");
        CHECK(lists.lines == expected);
    }
}

TEST_CASE("an outline has a title when a line stands before it") {
    const testing::MadeUpFonts fonts;
    struct Row {
        const char* why;
        StringView note;
        std::string outline;
    };
    const Row rows[] = {
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
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(qznote::outlineReport(qznote::renderedNote(row.note, {}),
                                    qznote::baseAttributes({})) == row.outline);
    }
}

TEST_CASE("markers of a list end in one column of the terminal") {
    const testing::MadeUpFonts fonts;
    struct Row {
        const char* why;
        StringView note;
        std::string ansi;
    };
    const Row rows[] = {
        {"sub-items stand below the text", u"- a\n\t1. b\n\t\t- c\n- d",
         "  \u25CF a\n    1. b\n       \u25CF c\n  \u25CF d\n"},
        {"numbers are aligned", u"1. a\n1. a\n1. a\n1. a\n1. a\n1. a\n1. a\n1. a\n1. a\n1. a",
         "   1. a\n   2. a\n   3. a\n   4. a\n   5. a\n   6. a\n   7. a\n   8. a\n   9. a\n"
         "  10. a\n"},
        {"what belongs to an item", u"1. a\n   b\n\nc", "  1. a\n     b\n\nc\n"},
        {"code in an item", u"1. a\n```\n  b\n \n  c\n```\n",
         "  1. a\n     \x1b[38;2;0;0;0;48;2;241;241;241m\x1b[Kb\x1b[0m\n"
         "     \x1b[38;2;0;0;0;48;2;241;241;241m\x1b[K\x1b[0m\n"
         "     \x1b[38;2;0;0;0;48;2;241;241;241m\x1b[Kc\x1b[0m\n"},
        {"one of the two empty lines behind a list goes", u"- a\n\n\nb", "  \u25CF a\n\n\nb\n"},
        {"markers look as all of the list does", u"*- a*",
         "  \x1b[3m\u25CF\x1b[0m \x1b[3ma\x1b[0m\n"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(qznote::ansiText(qznote::renderedNote(row.note, {}), qznote::baseAttributes({})) ==
              row.ansi);
    }
}

}  // namespace QZCore
