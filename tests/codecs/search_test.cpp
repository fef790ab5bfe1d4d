#include "QZCore/codecs/comparing.h"
#include "support/exact_copy.h"
#include "support/printing.h"
#include "support/random_texts.h"

namespace QZCore {

TEST_CASE("a search finds what its options ask for") {
    struct Row {
        const char* why;
        StringView text, string;
        std::uint32_t options;
        bool found;
    };
    const Row rows[] = {
        {"case counts", u"one Two", u"two", 0, false},
        {"case does not count", u"one Two", u"tWO", 1, true},
        {"one letter that is two in upper case", u"STRASSE", u"straße", 1, true},
        {"half of such a letter", u"ß", u"s", 1, false},
        {"nothing is not found", u"abc", u"", 0, false},
        {"canonically equivalent", u"caf\u00E9", u"cafe\u0301", 0, true},
        {"not to the letter", u"caf\u00E9", u"cafe\u0301", 2, false},
        {"a letter is not found in an accented one", u"cafe\u0301", u"cafe", 0, false},
        {"but to the letter", u"cafe\u0301", u"cafe", 2, true},
        {"a syllable is not found in a longer one", u"\u1100\u1161\u11A8", u"\uAC00", 0, false},
        {"anchored, elsewhere", u"one two", u"two", 8, false},
        {"anchored, at the start", u"one two", u"one", 8, true},
        {"anchored backwards, at the end", u"one two", u"two", 4 | 8, true},
        {"anchored backwards, at the start", u"one two", u"one", 4 | 8, false},
        {"anchored backwards, overlapping", u"aaaa", u"aaa", 4 | 8, true},
        {"backwards", u"one two", u"one", 4, true},
        {"numbers are searched as texts", u"file 10", u"file 010", 64, false},
        {"diacritics do not count", u"Ré\u0323sumé", u"Resume", 128, true},
        {"vowel points do not count", u"\u05E9\u05C1\u05B8", u"\u05E9", 128, true},
        {"diacritics alone are nothing", u"e\u0301", u"\u0301", 128, false},
        {"diacritics count", u"résumé", u"resume", 1, false},
        {"full width", u"\uFF21\uFF42", u"Ab", 256, true},
        {"half width with its voicing mark", u"\uFF76\uFF9E", u"\u30AC", 256, true},
        {"width counts", u"\uFF21", u"A", 1, false},
        {"unpaired surrogates", u"a\xD800z", u"\xD800", 1, true},
        {"half of a pair", u"\U0001F600", u"\xD83D", 0, false},
        {"a pattern", u"a12", u"[0-9]+", 1024, true},
        {"a pattern, anchored", u"a12", u"[0-9]+", 1024 | 8, false},
        {"a pattern in any case", u"ABC", u"b", 1024 | 1, true},
        {"a pattern's first match is empty", u"abx", u"x*", 1024, false},
        {"no pattern", u"a(", u"a(", 1024, false},
        {"unknown options", u"abc", u"b", 0x80000000, true},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(containsString(testing::ExactCopy(row.text), row.string, row.options) == row.found);
    }
}

TEST_CASE("a search in a range sees nothing else") {
    CHECK_FALSE(containsString(u"one two", u"two", 0, {4, 2}));
    CHECK(containsString(u"one two", u"two", kSearchAnchored, {4, 3}));
    CHECK(containsString(u"one two", u"^two$", kSearchRegularExpression, {4, 100}));
    CHECK_FALSE(containsString(u"one", u"one", 0, kNotFoundRange));
}

TEST_CASE("occurrences are counted from the left without overlaps") {
    CHECK(countOccurrencesOfString(u"Aa", u"a") == 1);
    CHECK(countOccurrencesOfString(u"caf\u00E9", u"e\u0301") == 0);
    CHECK(countOccurrencesOfString(u"abc", u"") == 0);
    testing::RandomTexts texts(u"ab");
    for (int i = 0; i < 20'000; ++i) {
        const String text = texts.next(20);
        const String string = texts.next(5) + u"a";
        std::size_t count = 0;
        for (std::size_t at = 0; (at = text.find(string, at)) != String::npos;
             at += string.size()) {
            ++count;
        }
        REQUIRE(countOccurrencesOfString(text, string) == count);
        REQUIRE(containsString(text, string, kSearchCaseInsensitive) == (count > 0));
        REQUIRE(stringContainsStringFromArray(text, {u"", u"c", string}) == (count > 0));
    }
}

TEST_CASE("searches that nearly match everywhere take linear time") {
    constexpr std::size_t kLength = 2'000'000;
    const String text(kLength, u'a');
    CHECK(countOccurrencesOfString(text, String(kLength / 2, u'a') + u"b") == 0);
    CHECK_FALSE(containsString(text, u"b" + String(kLength / 2, u'a'), kSearchCaseInsensitive));
    // Half of the places match, but begin or end within a letter.
    CHECK_FALSE(containsString(String(kLength / 4, u'ß'), String(kLength / 8 + 1, u's'),
                               kSearchCaseInsensitive));
    String marks = u"a";
    while (marks.size() < kLength) marks += u"\u0301\u0316";
    CHECK_FALSE(containsString(marks, u"b", kSearchDiacriticInsensitive));
}

TEST_CASE("texts are equal when only their case differs") {
    CHECK(isCaseInsensitiveEqualToString(u"Straße", u"STRASSE"));
    CHECK(isCaseInsensitiveEqualToString(u"\u00C9t\u00E9ΟΔΟΣ", u"e\u0301TE\u0301οδος"));
    CHECK_FALSE(isCaseInsensitiveEqualToString(u"ete", u"été"));
    CHECK_FALSE(isCaseInsensitiveEqualToString(u"I", u"\u0131"));
    CHECK_FALSE(isCaseInsensitiveEqualToString(u"a", u"a "));
}

TEST_CASE("white space of every kind is no content") {
    CHECK_FALSE(containsNonWhitespace(u" \t\r\n\v\f\u0085\u00A0\u2003\u2028\u3000"));
    CHECK(containsNonWhitespace(StringView(u" \0", 2)));
}

}  // namespace QZCore
