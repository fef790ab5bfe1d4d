// Texts that are made to slow a search down. A search that is not linear in them
// runs into the time limit of the test run.
#include "markdown/scanner.h"
#include "markdown/syntax_rows.h"
#include "support/printing.h"

namespace QZCore {

namespace {

constexpr std::size_t kMany = 100'000;

String repeated(StringView piece, std::size_t times = kMany) {
    String text;
    text.reserve(piece.size() * times);
    for (; times > 0; --times) text += piece;
    return text;
}

// Runs of one, two, three ... backticks.
String growingRuns(std::size_t units) {
    String text;
    for (std::size_t length = 1; text.size() < units; ++length) {
        text.append(length, u'`').append(u" ");
    }
    return text;
}

std::vector<SpanMatch> matchesOf(ScannerKind kind, StringView text) {
    std::vector<SpanMatch> matches;
    scanMatches(kind, text, matches);
    return matches;
}

}  // namespace

TEST_CASE("unmatched openers and endless constructs take no longer than other texts") {
    struct Row {
        const char* why;
        ScannerKind kind;
        String text;
        std::size_t matches;
    };
    const String megabyte(1'000'000, u'x');
    const Row rows[] = {
        {"unmatched _", ScannerKind::ItalicUnderscore, repeated(u"_a "), 0},
        {"unmatched *", ScannerKind::ItalicAsterisk, repeated(u"*a "), 0},
        {"unmatched *** and ___", ScannerKind::BoldItalic, repeated(u"***a ___b "), 0},
        {"pairs inside of pairs", ScannerKind::BoldItalic,
         repeated(u"***a ___b*** ") + u"***c d___", kMany},
        {"underscores behind marks", ScannerKind::ItalicUnderscore, repeated(u"_\u0301"), 0},
        {"one underscore behind many marks", ScannerKind::ItalicUnderscore,
         repeated(u"\u0301") + u"_a_", 1},
        {"escapes", ScannerKind::Escape, repeated(u"\\*"), kMany},
        {"escaped backticks", ScannerKind::InlineCode, repeated(u"\\`"), kMany / 2},
        {"growing runs of backticks", ScannerKind::InlineCode, growingRuns(kMany), 0},
        {"opening brackets", ScannerKind::Link, repeated(u"["), 0},
        {"opening brackets with text", ScannerKind::Link, repeated(u"[a"), 0},
        {"nested brackets", ScannerKind::Link, repeated(u"[") + repeated(u"]"), 0},
        {"unclosed targets", ScannerKind::Link, repeated(u"[a](b"), 0},
        {"one link behind unclosed brackets", ScannerKind::Link, repeated(u"[a") + u"](b)", 1},
        {"hashes", ScannerKind::Headers, repeated(u"#"), 0},
        {"hashes and a title", ScannerKind::HeadersNoSpace, repeated(u"#"), 1},
        {"blanks behind hashes", ScannerKind::HeadersNoSpace, u"#" + repeated(u" "), 1},
        {"quote marks", ScannerKind::BlockQuote, repeated(u">"), 1},
        {"quoted lines", ScannerKind::BlockQuote, repeated(u"> a\n"), kMany},
        {"colons", ScannerKind::Emoji, repeated(u":"), 0},
        {"unclosed short codes", ScannerKind::Emoji, repeated(u":a "), 0},
        {"fences that do not open", ScannerKind::CodeBlock, repeated(u"```"), 0},
        {"unclosed fences", ScannerKind::CodeBlock, repeated(u"```\n", 1), 0},
        {"a block of a million units", ScannerKind::CodeBlock, u"```\n" + megabyte + u"```", 1},
        {"a list of a million units", ScannerKind::List, u"- " + megabyte, 1},
        {"a list of carriage returns", ScannerKind::List, u"- " + repeated(u"\r\n"), 1},
        {"items", ScannerKind::ListLine, repeated(u"- a b c\n"), kMany},
        {"a number without end", ScannerKind::ListLine, repeated(u"1"), 0},
        {"indentation without end", ScannerKind::ListLine, repeated(u" "), 0},
        {"hyphens", ScannerKind::Table, repeated(u"-"), 0},
        {"hyphens and a bar", ScannerKind::Table, repeated(u"-") + u"|", 1},
        {"bars in a line that is no rule", ScannerKind::Table, u"a" + repeated(u"|"), 0},
        {"signs", ScannerKind::InlineMeta, repeated(u" #"), 0},
        {"one name without end", ScannerKind::InlineMeta, u"#" + repeated(u"a#"), 0},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(matchesOf(row.kind, row.text).size() == row.matches);

        // The other searches have to get along with the text, too.
        for (const SyntaxRow& other : kSyntaxRows) {
            std::uint32_t end = 0;
            for (const SpanMatch& match : matchesOf(other.scanner, row.text)) {
                REQUIRE(match.whole.start >= end);
                REQUIRE(match.whole.end > match.whole.start);
                end = match.whole.end;
            }
            REQUIRE(end <= row.text.size());
        }
    }
}

}  // namespace QZCore
