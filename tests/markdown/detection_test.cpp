#include "QZCore/markdown/detection.h"

#include "support/printing.h"

namespace QZCore {

namespace {

MarkdownSyntax syntaxWith(const Dictionary& settings) {
    return markdownSyntaxFromPreferences(Preferences(settings));
}

}  // namespace

TEST_CASE("a text contains Markdown when it holds rich text or a list") {
    struct Row {
        const char* why;
        StringView text;
        bool richText;
        bool any;
    };
    const Row rows[] = {
        {"nothing", u"", false, false},
        {"plain words", u"Plain words, nothing else.", false, false},
        {"italic", u"an *italic* word", true, true},
        {"italic with underscores", u"an _italic_ word", true, true},
        {"bold", u"a **bold** word", true, true},
        {"bold italic", u"___both___", true, true},
        {"underline", u"__under__", true, true},
        {"strikethrough", u"~~gone~~", true, true},
        {"highlights", u"==a==", true, true},
        {"highlight with carets", u"^^a^^", true, true},
        {"highlight with colons", u"::a::", true, true},
        {"inline code", u"some `code`", true, true},
        {"link", u"[text](target)", true, true},
        {"header", u"a\n## Title", true, true},
        {"a list alone", u"- one\n- two", false, true},
        {"an escaped pair", u"\\*plain\\*", false, false},
        {"an escaped opening delimiter", u"\\*plain*", false, false},
        {"an escaped backslash escapes nothing", u"\\\\*italic*", true, true},
        {"an escaped hash", u"\\# no title", false, false},
        {"an escaped list marker", u"\\- no item", false, false},
        {"the placeholders of escapes count as text", u"*\\**", true, true},
        {"underscores inside a word", u"snake_case_name", false, false},
        {"blanks inside the delimiters", u"2 * 3 * 4", false, false},
        {"a hash without a blank", u"#tag", false, false},
        {"seven hashes", u"####### Title", false, false},
        {"a header that trimming leaves without a title", u"text\n# ", false, false},
        {"a header behind leading white space", u" \n\t# Title", true, true},
        {"an item that trimming leaves without text", u"- ", false, false},
        {"emoji, code blocks, quotes and tags", u"> :smile: #tag\n```\ncode\n```", false, false},
        {"a table alone", u"a|b\n-|-\n1|2", false, false},
        {"a list and a table", u"- a\n\n-|-", false, true},
        {"italic in a list", u"- *a*", true, true},
    };
    const MarkdownSyntax syntax = syntaxWith({});
    for (const Row& row : rows) {
        CAPTURE(row.text);
        CHECK(containsMarkdownRichText(row.text, syntax) == row.richText);
        CHECK(containsMarkdown(row.text, syntax) == row.any);
        CHECK(containsMarkdownOptions(row.text, kMarkdownOptionRichText, true, syntax) ==
              row.richText);
    }
}

TEST_CASE("a list is alone when nothing but a title and a blank line stand before it") {
    struct Row {
        const char* why;
        StringView text;
        bool isAlone;
    };
    const Row rows[] = {
        {"items", u"- one\n- two", true},
        {"white space around", u"\n\n  - one\n- two \n\n", true},
        {"one item that has a further line", u"1. one\nmore", true},
        {"a title, a blank line, items", u"Title\n\n- one\n- two", true},
        {"a blank line that holds blanks", u"Title\n \t\n- one", true},
        {"a title and items", u"Title\n- one\n- two", false},
        {"two lines of title", u"Title\nmore\n\n- one", false},
        {"two blank lines", u"Title\n\n\n- one", false},
        {"a paragraph behind", u"- one\n- two\n\nmore", false},
        {"a title and a paragraph behind", u"Title\n\n- one\n\nmore", false},
        {"two lists", u"- one\n\n- two", false},
        {"a blank line with blanks does not end a list", u"- one\n \nmore", true},
        {"blank lines with carriage returns are none", u"- one\r\n\r\nmore", true},
        {"a title with carriage returns is no title", u"Title\r\n\r\n- one", true},
        {"a separate line end", u"Title\u2028- one", false},
        {"no list", u"text", false},
        {"a table", u"a|b\n-|-", false},
    };
    const MarkdownSyntax syntax = syntaxWith({});
    for (const Row& row : rows) {
        CAPTURE(row.text);
        CHECK(containsMarkdownListOnly(row.text, syntax) == row.isAlone);
    }
}

TEST_CASE("a table is alone when no line is empty") {
    struct Row {
        StringView text;
        bool isAlone;
        bool isThere;
    };
    const Row rows[] = {
        {u"a|b\n-|-\n1|2", true, true},
        {u"-|-", true, true},
        {u"| a | b |\n|---|:-:|", true, true},
        {u"\n\n-|-\n\n", true, true},
        {u"a|b\n-|-\n\ntext", false, true},
        {u"text\n\n-|-", false, true},
        {u"text\n-|-\ntext", true, true},
        {u"a|b\n1|2", false, false},
        {u"----", false, false},
        {u"text\r\n\r\n-|-", true, true},
    };
    const MarkdownSyntax syntax = syntaxWith({});
    for (const Row& row : rows) {
        CAPTURE(row.text);
        CHECK(containsMarkdownTableOnly(row.text, syntax) == row.isAlone);
        CHECK(containsMarkdownOptions(row.text, kMarkdownOptionTable, false, syntax) ==
              row.isThere);
    }
}

TEST_CASE("a table is looked for only where lists are not") {
    const StringView table = u"a|b\n-|-";
    const MarkdownSyntax all = syntaxWith({});
    const MarkdownSyntax withoutLists = syntaxWith({{u"Markdown Support Lists", false}});
    for (const bool onlyOne : {false, true}) {
        CHECK(containsMarkdownOptions(table, kMarkdownOptionTable, onlyOne, all));
        CHECK_FALSE(containsMarkdownOptions(table, kMarkdownOptionTable | kMarkdownOptionList,
                                            onlyOne, all));
        CHECK_FALSE(containsMarkdownOptions(table, kMarkdownOptionTable | kMarkdownOptionList,
                                            onlyOne, withoutLists));
        CHECK_FALSE(containsMarkdownOptions(u"- a", kMarkdownOptionList, onlyOne, withoutLists));
        CHECK_FALSE(containsMarkdownOptions(u"*a*", 0, onlyOne, all));
        CHECK_FALSE(containsMarkdownOptions(u"*a*", 8, onlyOne, all));
    }
}

TEST_CASE("detection follows the switches, but escapes are always taken out") {
    CHECK_FALSE(containsMarkdown(u"*a*", syntaxWith({{u"Markdown Support Italic", false}})));
    CHECK(containsMarkdown(u"snake_case_name",
                           syntaxWith({{u"Markdown Support Intraword Underscore Italic", true}})));
    CHECK(containsMarkdown(u"#Title", syntaxWith({{u"Markdown Regex Header No Space", true}})));
    CHECK(containsMarkdown(u"<a>b</a>", syntaxWith({{u"Markdown RegEx Link", u"<(.)>(.)</a>"}})));
}

TEST_CASE("the tests without a table use that of the process") {
    CHECK(containsMarkdown(u"*a*"));
    CHECK(containsMarkdownRichText(u"*a*"));
    CHECK(containsMarkdownListOnly(u"- a"));
    CHECK(containsMarkdownTableOnly(u"-|-"));
    CHECK(containsMarkdownOptions(u"- a", kMarkdownOptionList, false));
}

TEST_CASE("a task outline is a project line, tasks and indented notes") {
    struct Row {
        const char* why;
        StringView text;
        bool isOutline;
    };
    const Row rows[] = {
        {"a project, a task, a note", u"Project:\n- task\n\tnote", true},
        {"an indented task", u"Project:\n \t- task", true},
        {"a note before the task", u"Project:\n note\n- task", true},
        {"white space around", u"\n\n Project:\n- task\n", true},
        {"other line ends", u"Project:\u2028- task\r\tnote", true},
        {"no task", u"Project:\n\tnote", false},
        {"a plain line", u"Project:\n- task\nplain", false},
        {"a plain line before the tasks", u"Project:\nplain\n- task", false},
        {"an empty line", u"Project:\n\n- task", false},
        {"a line of blanks counts as a note", u"Project:\n \n- task", true},
        {"CR LF counts as two line ends", u"Project:\r\n- task", false},
        {"no blank behind the hyphen", u"Project:\n-task", false},
        {"an indented hyphen alone is a note", u"Project:\n- a\n -b", true},
        {"a last task that trimming leaves without its blank", u"Project:\n- ", false},
        {"one line", u"Project:", false},
        {"nothing", u"", false},
        {"no colon", u"Project\n- task", false},
        {"a blank behind the colon", u"Project: \n- task", false},
        {"a task first", u"- Project:\n- task", false},
        {"too short for a name", u"P:\n- task", false},
        {"two characters are enough", u"Pr:\n- task", true},
        {"a pair of surrogates is one character", u"\U0001F600:\n- task", false},
        {"an unpaired surrogate is a character", u"\xD83DP:\n- task", true},
    };
    for (const Row& row : rows) {
        CAPTURE(row.text);
        CHECK(isTaskPaperOutline(row.text) == row.isOutline);
    }
}

}  // namespace QZCore
