#include "QZCore/markdown/syntax.h"

#include <algorithm>

#include "markdown/expression_matches.h"
#include "support/printing.h"

namespace QZCore {

namespace {

MarkdownSyntax syntaxWith(const Dictionary& settings) {
    return markdownSyntaxFromPreferences(Preferences(settings));
}

std::vector<String> keysOf(const MarkdownSyntax& syntax) {
    std::vector<String> keys;
    for (const MarkdownExpression& expression : syntax.expressions()) {
        keys.emplace_back(expression.key());
    }
    return keys;
}

const std::vector<String> kAllKeys{u"escape",         u"italicUnderscore",
                                   u"italicAsterisk", u"bold",
                                   u"boldItalic",     u"underline",
                                   u"strikethrough",  u"highlightEquals",
                                   u"highlightCaret", u"highlightColon",
                                   u"inlineCode",     u"link",
                                   u"headers",        u"emoji",
                                   u"codeBlock",      u"blockQuote",
                                   u"list",           u"listLine",
                                   u"table",          u"inlineMeta"};

}  // namespace

TEST_CASE("without settings every construct is there, in order") {
    CHECK(keysOf(syntaxWith({})) == kAllKeys);
    CHECK(keysOf(allMarkdownRegex()) == kAllKeys);
    CHECK(&allMarkdownRegex() == &allMarkdownRegex());
}

TEST_CASE("a switch leaves out its constructs and no other") {
    struct Row {
        StringView name;
        std::vector<String> missing;
    };
    const Row rows[] = {
        {u"Markdown Support Italic", {u"italicUnderscore", u"italicAsterisk"}},
        {u"Markdown Support Italic Underscore", {u"italicUnderscore"}},
        {u"Markdown Support Bold", {u"bold"}},
        {u"Markdown Support Bold Italic", {u"boldItalic"}},
        {u"Markdown Support Underline", {u"underline"}},
        {u"Markdown Support Strikethrough", {u"strikethrough"}},
        {u"Markdown Support Highlight", {u"highlightEquals", u"highlightCaret", u"highlightColon"}},
        {u"Markdown Highlight Equals", {u"highlightEquals"}},
        {u"Markdown Highlight Caret", {u"highlightCaret"}},
        {u"Markdown Highlight Colon", {u"highlightColon"}},
        {u"Markdown Support Inline Code", {u"inlineCode"}},
        {u"Markdown Support Links", {u"link"}},
        {u"Markdown Support Header", {u"headers"}},
        {u"Markdown Support Emoji", {u"emoji"}},
        {u"Markdown Support Code Blocks", {u"codeBlock"}},
        {u"Markdown Support Block Quote", {u"blockQuote"}},
        {u"Markdown Support Lists", {u"list", u"listLine"}},
        {u"Markdown Support Tables", {u"table"}},
        {u"Markdown Support Intraword Underscore Italic", {}},
        {u"Markdown Regex Header No Space", {}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.name);
        const MarkdownSyntax syntax = syntaxWith({{row.name, false}});
        std::vector<String> expected;
        for (const String& key : kAllKeys) {
            const bool isMissing =
                std::find(row.missing.begin(), row.missing.end(), key) != row.missing.end();
            CHECK((syntax.expressionForKey(key) == nullptr) == isMissing);
            if (!isMissing) expected.push_back(key);
        }
        CHECK(keysOf(syntax) == expected);
        CHECK(keysOf(syntaxWith({{row.name, true}})) == kAllKeys);
    }
    CHECK(syntaxWith({}).expressionForKey(u"Bold") == nullptr);
}

// Users build on these texts when they replace one, and other programs read them.
TEST_CASE("patterns and options are published") {
    struct Row {
        StringView key;
        StringView pattern;
        std::uint32_t options;
    };
    const Row rows[] = {
        {u"escape",
         u"(\\\\\\\\|\\\\\\`|\\\\\\*|\\\\\\_|\\\\\\(|\\\\\\)|\\\\\\[|\\\\\\]|\\\\#|"
         u"\\\\\\+|\\\\\\-|\\\\\\!)",
         0},
        {u"italicUnderscore", u"\\b(?<!_)_(?=[^ \\t_])(.+?)(?<=[^ \\t_])_(?!_)\\b", 0},
        {u"bold", u"(?<!\\*)\\*{2}(?=[^ \\t*])(.+?)(?<=[^ \\t*])\\*{2}(?!\\*)", 0},
        {u"inlineCode", u"(?<!`)(`{1,3})([^`\n]+?)\\1(?!`)", 0},
        {u"link", u"!?\\[([^\\]]+)\\]\\(([^ \\)]+)\\)", 0},
        {u"headers", u"^(\\#{1,6})[ ](.+)$", 16},
        {u"emoji", u":([a-z0-9-+_]+):", 1},
        {u"codeBlock", u"```\\n([\\s\\S]+?)(```\\n?)", 8},
        {u"list", u"^[ \\t]*([*+-]|\\d+[.])[ \\t](.+?)(?:\\z|\\n\\n)", 24},
        {u"inlineMeta", u"(?>^|\\s)([#@][\\w]+[-.=\\/]?[\\w]+)", 9},
    };
    const MarkdownSyntax syntax = syntaxWith({});
    for (const Row& row : rows) {
        const MarkdownExpression* expression = syntax.expressionForKey(row.key);
        REQUIRE(expression != nullptr);
        CHECK(expression->pattern() == row.pattern);
        CHECK(expression->options() == row.options);
    }
}

TEST_CASE("two switches choose another variant") {
    const MarkdownSyntax intraword =
        syntaxWith({{u"Markdown Support Intraword Underscore Italic", true}});
    CHECK(intraword.expressionForKey(u"italicUnderscore")->pattern() ==
          u"(?<!_)_(?=[^ \\t_])(.+?)(?<=[^ \\t_])_(?!_)");
    CHECK(intraword.expressionForKey(u"italicUnderscore")->numberOfMatchesInString(u"a_b_c") == 1);
    CHECK(syntaxWith({}).expressionForKey(u"italicUnderscore")->numberOfMatchesInString(u"a_b_c") ==
          0);

    const MarkdownSyntax noSpace = syntaxWith({{u"Markdown Regex Header No Space", true}});
    CHECK(noSpace.expressionForKey(u"headers")->pattern() == u"^(\\#{1,6})[ ]*(.+)$");
    CHECK(noSpace.expressionForKey(u"headers")->numberOfMatchesInString(u"#a") == 1);
    CHECK(syntaxWith({}).expressionForKey(u"headers")->numberOfMatchesInString(u"#a") == 0);
}

TEST_CASE("matches come with their groups") {
    const MarkdownSyntax syntax = syntaxWith({});
    const MarkdownExpression& both = *syntax.expressionForKey(u"boldItalic");
    CHECK(both.numberOfCaptureGroups() == 3);
    CHECK(both.matchesInString(u"***a*** ___b___") ==
          std::vector<RegexMatch>{{{{0, 7}, {0, 7}, {3, 1}, kNotFoundRange}},
                                  {{{8, 7}, {8, 7}, kNotFoundRange, {11, 1}}}});
    CHECK(both.firstMatchInString(u"x ___b___")->group(3) == Range{5, 1});
    CHECK_FALSE(both.firstMatchInString(u"**a**"));
    CHECK(syntax.expressionForKey(u"table")->firstMatchInString(u"-|-")->groups ==
          std::vector<Range>{{0, 3}});
}

TEST_CASE("a setting replaces the link pattern") {
    const MarkdownSyntax syntax =
        syntaxWith({{u"Markdown RegEx Link", u"<(\\w+)\\|(\\w+)>(x)?(y)?"}});
    const MarkdownExpression& link = *syntax.expressionForKey(u"link");
    CHECK(link.pattern() == u"<(\\w+)\\|(\\w+)>(x)?(y)?");
    CHECK(link.numberOfMatchesInString(u"[a](b) <c|d> <e|f>y") == 2);
    CHECK(link.firstMatchInString(u"<c|d>")->group(2) == Range{3, 1});
    CHECK(link.matchesInString(u"<c|d>").front().groups.size() == 5);

    std::vector<SpanMatch> spans;
    findMatches(link, u"<c|d> <e|f>y", spans);
    REQUIRE(spans.size() == 2);
    CHECK(spans[1].whole == SpanMatch::Span{6, 12});
    CHECK(spans[1].groups[0] == SpanMatch::Span{7, 8});
    CHECK(spans[1].groups[2] == SpanMatch::Span{});
    for (const std::size_t limit : {0U, 1U, 2U, 3U}) {
        spans.clear();
        findMatches(link, u"<c|d> <e|f>", spans, limit);
        CHECK(spans.size() == std::min<std::size_t>(limit, 2));
    }
    CHECK(syntaxWith({{u"Markdown RegEx Link", u"!?\\[([^\\]]+)\\]\\(([^ \\)]+)\\)"}})
              .expressionForKey(u"link")
              ->numberOfMatchesInString(u"[a](b)") == 1);
}

TEST_CASE("a link pattern that is no expression leaves links out") {
    const Value unusable[] = {u"(", u"", u"[a", Value(Dictionary{})};
    for (const Value& pattern : unusable) {
        const MarkdownSyntax syntax = syntaxWith({{u"Markdown RegEx Link", pattern}});
        CAPTURE(pattern);
        CHECK(syntax.expressionForKey(u"link") == nullptr);
        CHECK(syntax.expressions().size() == kAllKeys.size() - 1);
    }
}

TEST_CASE("a table does not follow settings that change later") {
    Preferences preferences;
    const MarkdownSyntax before = markdownSyntaxFromPreferences(preferences);
    preferences.setObject(false, u"Markdown Support Bold");
    CHECK(before.expressionForKey(u"bold") != nullptr);
    CHECK(markdownSyntaxFromPreferences(preferences).expressionForKey(u"bold") == nullptr);
}

}  // namespace QZCore
