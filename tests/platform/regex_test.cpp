#include "QZCore/platform/regex.h"

#include <thread>

#include "support/printing.h"

namespace QZCore {

namespace {

RegularExpression compiled(StringView pattern, std::uint32_t options = kRegexNoOptions) {
    return *RegularExpression::compile(pattern, options);
}

std::vector<Range> rangesOf(const std::vector<RegexMatch>& matches) {
    std::vector<Range> ranges;
    for (const RegexMatch& match : matches) ranges.push_back(match.range());
    return ranges;
}

}  // namespace

TEST_CASE("a search sees its range as if it were the whole text") {
    struct Row {
        const char* why;
        StringView pattern;
        std::uint32_t options;
        StringView text;
        Range range;
        std::vector<Range> expected;
    };
    const Row rows[] = {
        {"all matches in order", u"a+", 0, u"aa b a", {0, 6}, {{0, 2}, {5, 1}}},
        {"empty matches move on", u"x*", 0, u"ab", {0, 2}, {{0, 0}, {1, 0}, {2, 0}}},
        {"an empty text", u"^$", 0, u"", {0, 0}, {{0, 0}}},
        {"positions count from the start of the text", u"b", 0, u"bab", {1, 2}, {{2, 1}}},
        {"anchors match at the ends of the range", u"^b$", 0, u"abc", {1, 1}, {{1, 1}}},
        {"look-behind stops at the range", u"(?<=a)b", 0, u"ab", {1, 1}, {}},
        {"look-ahead stops at the range", u"a(?!b)", 0, u"ab", {0, 1}, {{0, 1}}},
        {"word boundaries stop at the range", u"\\bb", 0, u"ab", {1, 1}, {{1, 1}}},
        {"a range beyond the text is cut", u"b", 0, u"ab", {1, SIZE_MAX}, {{1, 1}}},
        {"a range behind the text is empty", u"b", 0, u"ab", {kNotFound, 1}, {}},
        {"letter case counts", u"A", 0, u"aA", {0, 2}, {{1, 1}}},
        {"letter case ignored", u"A", kRegexCaseInsensitive, u"aA", {0, 2}, {{0, 1}, {1, 1}}},
        {"a dot stops at line ends", u".+", 0, u"a\nb", {0, 3}, {{0, 1}, {2, 1}}},
        {"a dot takes line ends", u".+", kRegexDotMatchesLineSeparators, u"a\nb", {0, 3}, {{0, 3}}},
        {"anchors match the text", u"^.", 0, u"a\nb", {0, 3}, {{0, 1}}},
        {"anchors match lines", u"^.", kRegexAnchorsMatchLines, u"a\nb", {0, 3}, {{0, 1}, {2, 1}}},
        {"an unpaired surrogate is a character",
         u"^.b",
         0,
         u"\xD83D"
         u"b",
         {0, 2},
         {{0, 2}}},
        {"NUL is a character", u".", 0, StringView(u"\0", 1), {0, 1}, {{0, 1}}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const RegularExpression expression = compiled(row.pattern, row.options);
        const std::vector<RegexMatch> matches = expression.matchesInString(row.text, row.range);
        CHECK(rangesOf(matches) == row.expected);
        CHECK(expression.numberOfMatchesInString(row.text, row.range) == matches.size());
        const auto first = expression.firstMatchInString(row.text, row.range);
        REQUIRE(first.has_value() == !matches.empty());
        if (first) CHECK(*first == matches.front());
    }
}

TEST_CASE("an anchored match starts where the range starts") {
    const RegularExpression expression = compiled(u"b+");
    CHECK_FALSE(expression.anchoredMatchInString(u"abb"));
    CHECK(expression.anchoredMatchInString(u"abb", {1, 2})->range() == Range{1, 2});
}

TEST_CASE("groups that took no part are not found") {
    const RegularExpression expression = compiled(u"(a)|(b)");
    CHECK(expression.numberOfCaptureGroups() == 2);
    const RegexMatch match = *expression.firstMatchInString(u"xb");
    CHECK(match.groups == std::vector<Range>{{1, 1}, kNotFoundRange, {1, 1}});
    CHECK(match.group(3) == kNotFoundRange);
}

TEST_CASE("replacement templates name groups and escape with a backslash") {
    struct Row {
        const char* why;
        StringView pattern;
        StringView replacement;
        StringView expected;
    };
    const Row rows[] = {
        {"no group", u"b", u"-", u"a-c"},
        {"the whole match", u"b", u"<$0>", u"a<b>c"},
        {"groups", u"(a)(b)", u"$2$1", u"bac"},
        {"no such group", u"b", u"<$1>", u"a<>c"},
        {"a group that took no part", u"(x)?b", u"<$1>", u"a<>c"},
        {"digits that name no group are literal", u"(a)(b)", u"$12", u"a2c"},
        {"group ten", u"(a)(b)(c)()()()()()()(d?)", u"[$10$3]", u"[c]"},
        {"escaped dollar sign", u"b", u"\\$0", u"a$0c"},
        {"escaped backslash", u"b", u"\\\\$0", u"a\\bc"},
        {"dollar sign before a letter", u"b", u"$x$", u"a$x$c"},
        {"backslash at the end", u"b", u"$0\\", u"abc"},
        {"empty matches", u"x*", u"-", u"-a-b-c-"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(compiled(row.pattern).stringByReplacingMatchesInString(u"abc", row.replacement) ==
              row.expected);
    }
    CHECK(compiled(u"a").stringByReplacingMatchesInString(u"aaa", {1, 1}, u"-") == u"a-a");
}

TEST_CASE("what cannot be compiled is nothing") {
    // Half of a pair made the engine read before the text.
    for (const StringView pattern : {u"", u"(", u"[", u"a{2", u"\\", u"(?<=a*)b", u"\xD800(",
                                     u"a\xD83D.*b", u"a\\uD83D.*b", u"a\\x{D83D}.*b"}) {
        CHECK_FALSE(RegularExpression::compile(pattern));
    }
    CHECK(compiled(u"\\\\u\\uD83D\\uDE42|\xDE42").numberOfMatchesInString(u"\\u\U0001F642") == 1);
    for (const std::uint32_t options : {2U, 32U, 64U, 1U << 31}) {
        CHECK_FALSE(RegularExpression::compile(u"a", options));
    }
    CHECK_FALSE(RegularExpression::compile(String(1'000'000, u'(')));
    const RegularExpression expression = compiled(u"a\\d", 1 + 8 + 16);
    CHECK(expression.pattern() == u"a\\d");
    CHECK(expression.options() == 25);
}

TEST_CASE("a search that runs away ends, and loses what it had not found yet") {
    const String text = u"aab " + String(200, u'a');
    const auto runaway = RegularExpression::compile(u"(?:a|a)*b", kRegexNoOptions, 20);
    CHECK(rangesOf(runaway->matchesInString(text)) == std::vector<Range>{{0, 3}});

    // The engine does not count the steps of an atomic loop; the time ends it.
    const auto possessive = RegularExpression::compile(u"a(?>[^b]*)b", kRegexNoOptions, 20);
    CHECK(possessive->numberOfMatchesInString(String(200'000, u'a')) == 0);
}

TEST_CASE("the budget grows with the text") {
    String text;
    for (int i = 0; i < 2000; ++i) text += String(500, u'a') + u'b';
    const auto lazy = RegularExpression::compile(u"a.*?b", kRegexNoOptions, 1);
    CHECK(lazy->numberOfMatchesInString(text) == 2000);
}

TEST_CASE("one expression serves many threads") {
    const RegularExpression expression = compiled(u"(\\w+)@(\\w+)");
    const String text = u"a@b cc@dd eee@fff";
    const std::vector<RegexMatch> expected = expression.matchesInString(text);
    std::vector<std::thread> threads;
    std::vector<int> agreed(4, 0);
    for (int& count : agreed) {
        threads.emplace_back([&] {
            for (int i = 0; i < 500; ++i) count += expression.matchesInString(text) == expected;
        });
    }
    for (std::thread& thread : threads) thread.join();
    CHECK(agreed == std::vector<int>(4, 500));
}

}  // namespace QZCore
