#include "QZCore/codecs/transforming.h"

#include "QZCore/platform/regex.h"
#include "support/log_capture.h"
#include "support/random_texts.h"
#include "support/text_rows.h"

namespace QZCore {

TEST_CASE("a substring outside of the text is empty and logged once") {
    const testing::LogCapture log;
    CHECK(safeSubstringWithRange(u"abcd", {1, 3}) == u"bcd");
    CHECK(safeSubstringWithRange(u"abcd", {4, 0}).empty());
    CHECK(log.lines().empty());
    CHECK(safeSubstringWithRange(u"abcd", {2, 3}).empty());
    CHECK(safeSubstringWithRange(u"abcd", {4, SIZE_MAX}).empty());
    const String start = u"Attempting to call substringWithRange with range location ";
    CHECK(log.lines() ==
          std::vector{start + u"2 and length 3, our string is length 4",
                      start + u"4 and length 18446744073709551615, our string is length 4"});
}

TEST_CASE("a set of characters holds its ranges and nothing beside them") {
    const auto set = CharacterSet::charactersInRanges(
        {{u'x', u'z'}, {u'a', u'c'}, {u'b', u'e'}, {0x1F600, 0x1F64F}, {0x1F610, 0x1F611}, {5, 2}});
    for (char32_t point = 0; point < 0x20000; ++point) {
        const bool expected = (point >= u'a' && point <= u'e') ||
                              (point >= u'x' && point <= u'z') ||
                              (point >= 0x1F600 && point <= 0x1F64F);
        REQUIRE(set.contains(point) == expected);
    }
    const auto without = [](const CharacterSet& of) {
        return stringByRemovingCharactersInSet(u" \t\n\u00A0\u2028\u3000aAÉ\u01C5ßfFg09", of);
    };
    CHECK(without(CharacterSet::whitespace()) == u"\n\u2028aAÉ\u01C5ßfFg09");
    CHECK(without(CharacterSet::newlines()) == u" \t\u00A0\u3000aAÉ\u01C5ßfFg09");
    CHECK(without(CharacterSet::whitespaceAndNewlines()) == u"aAÉ\u01C5ßfFg09");
    CHECK(without(CharacterSet::uppercaseLetters()) == u" \t\n\u00A0\u2028\u3000aßfg09");
    CHECK(without(hexCharacterSet()) == u" \t\n\u00A0\u2028\u3000É\u01C5ßg");
}

TEST_CASE("the characters of a set are replaced one by one") {
    const auto set = CharacterSet::charactersInString(u"ab\U0001F600");
    CHECK(stringByRemovingCharactersInSet(u"xaabcy\U0001F600", set) == u"xcy");
    CHECK(stringByReplacingCharactersInSet(u"xaab", set, u"--") == u"x------");
    CHECK(stringByReplacingCharactersInSet(u"\U0001F600\xD83D", set, u"a") == u"a\xD83D");
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
}

TEST_CASE("joined words are taken apart and capitalised") {
    const testing::TextRow<StringView> rows[] = {
        {"words", u"someJoinedWords", u"Some Joined Words"},
        {"capitals", u"XMLParser", u"X M L Parser"},
        {"two words already", u"two words", u"Two Words"},
        {"a blank before a capital", u"a Word", u"A  Word"},
        {"what is no letter", u"(first)line\nsecond", u"(First)line\nSecond"},
        {"letters beyond ASCII", u"élanÉtat", u"Élan État"},
        {"a letter that becomes two", u"ßig", u"Ssig"},
        {"a title-case letter", u"\u01C6ur", u"\u01C5ur"},
        {"letters beyond the basic plane", u"\U00010428\U00010400", u"\U00010400 \U00010400"},
        {"an unpaired surrogate", u"a\xD800\u00C9", u"A\xD800 \u00C9"},
    };
    testing::checkRows(rows, stringByExpandingJoinedCapitalizedWords);
}

TEST_CASE("ROT13 moves the units from A to z, and those between the alphabets") {
    CHECK(rot13(u"[\\]^_`@{19 é") == u"hijklm@{19 é");
    const StringView letters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    CHECK(rot13(letters) == u"NOPQRSTUVWXYZABCDEFGHIJKLMnopqrstuvwxyzabcdefghijklm");
}

TEST_CASE("reversing keeps composed characters together") {
    const testing::TextRow<StringView> rows[] = {
        {"a surrogate pair", u"a\U0001F600b", u"b\U0001F600a"},
        {"unpaired surrogates", u"\xDC00\xD800", u"\xD800\xDC00"},
        {"combining marks in order", u"ae\u0301\u0323b", u"be\u0301\u0323a"},
        {"a control is no base", u"a\n\u0301b", u"b\u0301\na"},
        {"a spacing mark", u"\u0915\u093Fx", u"x\u0915\u093F"},
        {"line ends are two characters", u"a\r\nb", u"b\n\ra"},
        {"a family", u"a\U0001F468\u200D\U0001F469b", u"b\U0001F468\u200D\U0001F469a"},
        {"a skin tone", u"\U0001F44D\U0001F3FDx", u"x\U0001F44D\U0001F3FD"},
        {"two flags", u"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7",
         u"\U0001F1EB\U0001F1F7\U0001F1E9\U0001F1EA"},
        {"conjoining letters", u"\u1100\u1161\u11A8\u1100", u"\u1100\u1100\u1161\u11A8"},
        {"a joiner between letters", u"\U0001F600\u200Dba\u200D\U0001F600",
         u"\U0001F600a\u200Db\U0001F600\u200D"},
    };
    testing::checkRows(rows, reverse);
}

}  // namespace QZCore
