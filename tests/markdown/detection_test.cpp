#include "QZCore/markdown/detection.h"

#include <algorithm>

#include "QZCore/codecs/parsing.h"
#include "support/engine_matches.h"
#include "support/printing.h"
#include "support/random_texts.h"

namespace QZCore {
namespace {

using testing::engineMatches;

MarkdownSyntax syntaxWith(const Dictionary& settings) {
    return markdownSyntaxFromPreferences(Preferences(settings));
}

// ---- The rules, carried out by the regular-expression engine ------------------

bool isListByRule(StringView text, bool onlyOne, const MarkdownSyntax& syntax) {
    const auto lists = engineMatches(syntax.expressionForKey(kMarkdownList), text);
    if (lists.empty()) return false;
    const Range list = lists.front().range();
    if (!onlyOne || list.length == text.size()) return true;
    if (text.substr(list.location).find(u"\n\n") != StringView::npos) return false;
    if (list.location == 0) return true;
    const auto before = componentsSeparatedByPattern(text.substr(0, list.location - 1), u"\n");
    return before.size() == 2 && !trimmedOfWhitespaceAndNewlines(before[0]).empty() &&
           trimmedOfWhitespaceAndNewlines(before[1]).empty();
}

bool isTableByRule(StringView text, bool onlyOne, const MarkdownSyntax& syntax) {
    const auto tables = engineMatches(syntax.expressionForKey(kMarkdownTable), text);
    if (tables.empty()) return false;
    return !onlyOne || tables.front().range().length == text.size() ||
           text.find(u"\n\n") == StringView::npos;
}

bool containsByRule(StringView whole, std::uint32_t options, bool onlyOne,
                    const MarkdownSyntax& syntax) {
    const auto escape =
        RegularExpression::compile(syntax.expressionForKey(kMarkdownEscape)->pattern());
    const String replaced = escape->stringByReplacingMatchesInString(whole, u"@@");
    const StringView text = trimmedOfWhitespaceAndNewlines(replaced);
    const auto isThere = [&](StringView key) {
        return !engineMatches(syntax.expressionForKey(key), text).empty();
    };
    if ((options & 1) != 0 && std::ranges::any_of(kMarkdownRichTextKeys, isThere)) return true;
    if ((options & 2) != 0) return isListByRule(text, onlyOne, syntax);
    return (options & 4) != 0 && isTableByRule(text, onlyOne, syntax);
}

bool isOutlineByRule(StringView text) {
    const auto project = RegularExpression::compile(u"^[^\\t-].+:$");
    const auto task = RegularExpression::compile(u"^[ \\t]*- ");
    const auto note = RegularExpression::compile(u"^[ \\t]+");
    const auto lines = componentsSeparatedByPattern(trimmedOfWhitespaceAndNewlines(text),
                                                    u"[\\n-\\r\\x85\\u2028\\u2029]");
    if (lines.size() < 2 || !project->anchoredMatchInString(lines[0])) return false;
    bool hasTask = false;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const bool isTask = task->anchoredMatchInString(lines[i]).has_value();
        if (!isTask && !note->anchoredMatchInString(lines[i])) return false;
        hasTask |= isTask;
    }
    return hasTask;
}

}  // namespace

TEST_CASE("detection answers as its rules do when the engine carries them out") {
    const MarkdownSyntax tables[] = {
        syntaxWith({}),
        syntaxWith({{u"Markdown Support Lists", false},
                    {u"Markdown Support Italic", false},
                    {u"Markdown Regex Header No Space", true},
                    {u"Markdown RegEx Link", u"(a)(b)"}}),
    };
    for (const StringView alphabet :
         {u"*_a \\\n-", u"- \na\t", u"1.-\n\n \ra", u"|-\n\na ", u"# \na[]()b", u"`=^:~a\\"}) {
        testing::RandomTexts texts(alphabet);
        for (int i = 0; i < 1500; ++i) {
            const String text = texts.next(14);
            CAPTURE(text);
            const auto options = static_cast<std::uint32_t>(i % 8);
            const bool onlyOne = i / 8 % 2 == 0;
            const MarkdownSyntax& syntax = tables[i / 16 % 2];
            REQUIRE(containsMarkdownOptions(text, options, onlyOne, syntax) ==
                    containsByRule(text, options, onlyOne, syntax));
        }
    }
    for (const StringView alphabet : {u"P:\n- \t", u"Pr:\n-- ", u"P\xD83D\xDE00:\n- \x2028\r"}) {
        testing::RandomTexts texts(alphabet);
        for (int i = 0; i < 20'000; ++i) {
            const String text = (i % 2 == 0 ? u"" : u"Pr:\n") + texts.next(9);
            CAPTURE(text);
            REQUIRE(isTaskPaperOutline(text) == isOutlineByRule(text));
        }
    }
}

TEST_CASE("each of the questions looks for its own constructs") {
    struct Row {
        const char* why;
        StringView text;
        const char* answers;  // any, rich text, list only, table only, outline
    };
    const Row rows[] = {
        {"nothing", u"", "....."},
        {"emoji, code blocks, quotes and tags", u"> :smile: #tag\n```\ncode\n```", "....."},
        {"a table", u"a|b\n-|-\n1|2", "...t."},
        {"a title, a blank line and items", u"Title\n\n- one\n- two", "a.l.."},
        {"blank lines with carriage returns are none", u"- one\r\n\r\nmore", "a.l.."},
        {"a task outline", u"Project:\n- task\n\tnote", "a...o"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        std::string answers;
        answers += containsMarkdown(row.text) ? 'a' : '.';
        answers += containsMarkdownRichText(row.text) ? 'r' : '.';
        answers += containsMarkdownListOnly(row.text) ? 'l' : '.';
        answers += containsMarkdownTableOnly(row.text) ? 't' : '.';
        answers += isTaskPaperOutline(row.text) ? 'o' : '.';
        CHECK(answers == row.answers);
    }
}

}  // namespace QZCore
