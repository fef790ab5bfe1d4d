#include "QZCore/markdown/syntax.h"

#include <algorithm>
#include <fstream>

#include "QZCore/codecs/parsing.h"
#include "markdown/expression_matches.h"
#include "support/printing.h"

namespace QZCore {
namespace {

MarkdownSyntax syntaxWith(const Dictionary& settings) {
    return markdownSyntaxFromPreferences(Preferences(settings));
}

/// A row as users and other programs know it. The file holds one a line: its
/// key and options, the settings that must be on, which they are by default
/// ("+": are not; "-": must be off), and its pattern.
struct PublishedRow {
    explicit PublishedRow(const std::string& line) {
        const std::vector<String> fields = componentsSeparatedByPattern(fromUTF8(line), u"  ");
        REQUIRE(fields.size() == 3);
        settings = componentsSeparatedByPattern(fields[1], u", ");
        const std::size_t feed = fields[2].find(u"<LF>");
        text = fields[0] + u" " + fields[2];
        if (feed != String::npos) text.replace(text.size() - fields[2].size() + feed, 4, u"\n");
    }

    /// Whether the row is there when one setting is on or off and all others
    /// are absent.
    [[nodiscard]] bool isPresent(StringView setting, bool isOn) const {
        return std::ranges::all_of(settings, [&](const String& needed) {
            if (needed.starts_with(u'+')) return setting == StringView(needed).substr(1) && isOn;
            if (needed.starts_with(u'-')) return setting != StringView(needed).substr(1) || !isOn;
            return needed == u"always" || setting != needed || isOn;
        });
    }

    std::vector<String> settings;
    String text;
};

std::vector<String> linesOf(const MarkdownSyntax& syntax) {
    std::vector<String> lines;
    for (const MarkdownExpression& row : syntax.expressions()) {
        CHECK(syntax.expressionForKey(row.key()) == &row);
        lines.push_back(String(row.key()) + u" " + unsignedString(row.options()) + u" " +
                        row.pattern());
    }
    return lines;
}

}  // namespace

TEST_CASE("the table is the published one, less what a setting switches off") {
    std::vector<PublishedRow> rows;
    std::ifstream file(QZCORE_TEST_DATA "/syntax.txt");
    for (std::string line; std::getline(file, line);) rows.emplace_back(line);
    REQUIRE(rows.size() == 22);
    const auto check = [&](StringView setting, bool isOn) {
        CAPTURE(setting);
        std::vector<String> expected;
        for (const PublishedRow& row : rows) {
            if (row.isPresent(setting, isOn)) expected.push_back(row.text);
        }
        CHECK(linesOf(syntaxWith({{setting, isOn}})) == expected);
    };
    for (const PublishedRow& row : rows) {
        for (const String& setting : row.settings) {
            const bool hasSign = setting.starts_with(u'+') || setting.starts_with(u'-');
            check(StringView(setting).substr(hasSign ? 1 : 0), false);
            check(StringView(setting).substr(hasSign ? 1 : 0), true);
        }
    }
    CHECK(linesOf(allMarkdownRegex()) == linesOf(syntaxWith({})));
    CHECK(&allMarkdownRegex() == &allMarkdownRegex());
    CHECK(allMarkdownRegex().expressionForKey(u"Bold") == nullptr);
}

TEST_CASE("matches come with their groups") {
    const MarkdownSyntax syntax = syntaxWith({});
    const MarkdownExpression& both = *syntax.expressionForKey(u"boldItalic");
    CHECK(both.numberOfCaptureGroups() == 3);
    CHECK(both.numberOfMatchesInString(u"***a*** ___b___") == 2);
    CHECK(both.matchesInString(u"***a*** ___b___") ==
          std::vector<RegexMatch>{{{{0, 7}, {0, 7}, {3, 1}, kNotFoundRange}},
                                  {{{8, 7}, {8, 7}, kNotFoundRange, {11, 1}}}});
    CHECK(both.firstMatchInString(u"x ___b___")->group(3) == Range{5, 1});
    CHECK_FALSE(both.firstMatchInString(u"**a**"));
}

TEST_CASE("a setting replaces the link pattern, and leaves links out when it is none") {
    const MarkdownSyntax syntax =
        syntaxWith({{u"Markdown RegEx Link", u"<(\\w+)\\|(\\w+)>(x)?(y)?"}});
    const MarkdownExpression& link = *syntax.expressionForKey(u"link");
    CHECK(link.pattern() == u"<(\\w+)\\|(\\w+)>(x)?(y)?");
    CHECK(link.numberOfMatchesInString(u"[a](b) <c|d> <e|f>y") == 2);
    CHECK(link.firstMatchInString(u"<c|d>")->group(2) == Range{3, 1});
    CHECK(link.matchesInString(u"<c|d>").front().groups.size() == 5);

    std::vector<SpanMatch> spans;
    for (const std::size_t limit : {0U, 1U, 3U}) {
        spans.clear();
        findMatches(link, u"<c|d> <e|f>y", spans, limit);
        CHECK(spans.size() == std::min<std::size_t>(limit, 2));
    }
    CHECK(spans[1].whole == SpanMatch::Span{6, 12});
    CHECK(spans[1].groups[0] == SpanMatch::Span{7, 8});
    CHECK(spans[1].groups[2] == SpanMatch::Span{});

    const Value unusable[] = {u"(", u"", u"[a", Value(Dictionary{})};
    for (const Value& pattern : unusable) {
        CAPTURE(pattern);
        CHECK(syntaxWith({{u"Markdown RegEx Link", pattern}}).expressionForKey(u"link") == nullptr);
    }
}

}  // namespace QZCore
