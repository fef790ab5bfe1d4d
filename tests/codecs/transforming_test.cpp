#include "QZCore/codecs/transforming.h"

#include "QZCore/platform/regex.h"
#include "support/exact_copy.h"
#include "support/log_capture.h"
#include "support/printing.h"
#include "support/random_texts.h"

namespace QZCore {

TEST_CASE("a substring outside of the text is empty and logged once") {
    struct Row {
        const char* why;
        Range range;
        StringView part;
        std::vector<String> lines;
    };
    const Row rows[] = {
        {"within", {1, 2}, u"bc", {}},
        {"empty, at the end", {4, 0}, u"", {}},
        {"one too long",
         {2, 3},
         u"",
         {u"Attempting to call substringWithRange with range location 2 and length 3, "
          u"our string is length 4"}},
        {"an end that does not fit",
         {4, SIZE_MAX},
         u"",
         {u"Attempting to call substringWithRange with range location 4 and length "
          u"18446744073709551615, our string is length 4"}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const testing::LogCapture log;
        CHECK(safeSubstringWithRange(u"abcd", row.range) == row.part);
        CHECK(log.lines() == row.lines);
    }
}

TEST_CASE("a set of characters holds its ranges and nothing beside them") {
    const auto set = CharacterSet::charactersInRanges(
        {{u'x', u'z'}, {u'a', u'c'}, {u'b', u'e'}, {0x1F600, 0x1F64F}, {5, 2}});
    for (char32_t point = 0; point < 0x20000; ++point) {
        const bool expected = (point >= u'a' && point <= u'e') ||
                              (point >= u'x' && point <= u'z') ||
                              (point >= 0x1F600 && point <= 0x1F64F);
        REQUIRE(set.contains(point) == expected);
    }
    for (char32_t unit = 0; unit < 0x10000; ++unit) {
        const auto narrow = static_cast<char16_t>(unit);
        REQUIRE(CharacterSet::whitespace().contains(unit) == isWhitespace(narrow));
        REQUIRE(CharacterSet::newlines().contains(unit) == isNewline(narrow));
    }
    CHECK(CharacterSet::uppercaseLetters().contains(U'É'));
    CHECK(CharacterSet::uppercaseLetters().contains(U'\u01C5'));
    CHECK_FALSE(CharacterSet::uppercaseLetters().contains(U'ß'));
    CHECK(hexCharacterSet().contains(U'f'));
    CHECK_FALSE(hexCharacterSet().contains(U'g'));
    CHECK_FALSE(CharacterSet().contains(0));
}

TEST_CASE("the characters of a set are removed or replaced one by one") {
    const auto set = CharacterSet::charactersInString(u"ab\U0001F600");
    CHECK(stringByRemovingCharactersInSet(u"xaabcy\U0001F600", set) == u"xcy");
    CHECK(stringByReplacingCharactersInSet(u"xaab", set, u"--") == u"x------");
    CHECK(stringByReplacingCharactersInSet(u"\U0001F600\xD83D", set, u"a") == u"a\xD83D");
    CHECK(stringByRemovingCharactersInSet(u"", set).empty());
}

TEST_CASE("trimming removes what the anchored pattern finds") {
    const auto pattern = RegularExpression::compile(u"(^\\s+)|(\\s+$)");
    testing::RandomTexts texts(u"ab \n\t\u00A0\u2028\v\u0085\u180E\u200B");
    for (int i = 0; i < 10'000; ++i) {
        const String text = texts.next(6);
        const auto match = pattern->anchoredMatchInString(text);
        String trimmed = text;
        trimWhitespace(trimmed);
        REQUIRE(trimmed == text.substr(match ? match->range().length : 0));
    }
    String text = u"\r\n a b \n";
    trimWhitespace(text);
    CHECK(text == u"a b \n");
}

TEST_CASE("joined words are taken apart and capitalised") {
    struct Row {
        StringView text, expanded;
    };
    const Row rows[] = {
        {u"someJoinedWords", u"Some Joined Words"},
        {u"XMLParser", u"X M L Parser"},
        {u"two words", u"Two Words"},
        {u"", u""},
        {u"A", u"A"},
        {u"a Word", u"A  Word"},
        {u"(first)line\nsecond", u"(First)line\nSecond"},
        {u"élanÉtat", u"Élan État"},
        {u"ßig", u"Ssig"},
        {u"\u01C6ur", u"\u01C5ur"},
        {u"don't", u"Don't"},
        {u"\U00010428\U00010400", u"\U00010400 \U00010400"},
        {u"a\xD800"
         u"B",
         u"A\xD800 B"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.text);
        CHECK(stringByExpandingJoinedCapitalizedWords(testing::ExactCopy(row.text)) ==
              row.expanded);
    }
}

TEST_CASE("ROT13 moves the units from A to z, and those between the alphabets") {
    CHECK(rot13(u"Hello, World! 123 é") == u"Uryyb, Jbeyq! 123 é");
    CHECK(rot13(u"[\\]^_`") == u"hijklm");
    CHECK(rot13(u"@{") == u"@{");
    String letters;
    for (char16_t c = u'A'; c <= u'Z'; ++c) letters += {c, static_cast<char16_t>(c + 32)};
    CHECK(rot13(rot13(letters)) == letters);
}

TEST_CASE("reversing keeps composed characters together") {
    struct Row {
        const char* why;
        StringView text, reversed;
    };
    const Row rows[] = {
        {"plain", u"abc", u"cba"},
        {"nothing", u"", u""},
        {"a surrogate pair", u"a\U0001F600b", u"b\U0001F600a"},
        {"unpaired surrogates", u"\xDC00\xD800", u"\xD800\xDC00"},
        {"combining marks in order", u"ae\u0301\u0323b", u"be\u0301\u0323a"},
        {"a mark without a base", u"\u0301ab", u"ba\u0301"},
        {"a control is no base", u"a\n\u0301b", u"b\u0301\na"},
        {"a spacing mark", u"\u0915\u093Fx", u"x\u0915\u093F"},
        {"line ends are two characters", u"a\r\nb", u"b\n\ra"},
        {"a family", u"a\U0001F468\u200D\U0001F469b", u"b\U0001F468\u200D\U0001F469a"},
        {"a skin tone", u"\U0001F44D\U0001F3FDx", u"x\U0001F44D\U0001F3FD"},
        {"two flags", u"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7",
         u"\U0001F1EB\U0001F1F7\U0001F1E9\U0001F1EA"},
        {"conjoining letters", u"\u1100\u1161\u11A8\u1100", u"\u1100\u1100\u1161\u11A8"},
        {"a joiner between letters", u"a\u200Db", u"ba\u200D"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(reverse(testing::ExactCopy(row.text)) == row.reversed);
    }
}

TEST_CASE("reversing twice restores a text whose marks all have a base") {
    testing::RandomTexts texts(u"ab\u00E9\u0416\n");
    for (int i = 0; i < 2'000; ++i) {
        String text;
        for (const char16_t unit : texts.next(12)) {
            text += unit;
            if (unit == u'a') text += u"\u0301\u0323";
        }
        REQUIRE(reverse(reverse(text)) == text);
    }
}

}  // namespace QZCore
