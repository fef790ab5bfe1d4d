#include <algorithm>
#include <cctype>
#include <set>

#include "QZCore/codecs/parsing.h"
#include "support/printing.h"

namespace QZCore {

TEST_CASE("a template's tags are filled in, in the dictionary's order") {
    struct Row {
        const char* why;
        StringView text;
        Dictionary values;
        StringView filled;
    };
    const Row rows[] = {
        {"every one, in any case", u"{Name} and {NAME}!", {{u"{name}", u"Ann"}}, u"Ann and Ann!"},
        {"a later key in a value", u"{a}", {{u"{a}", u"<{b}>"}, {u"{b}", u"1"}}, u"<1>"},
        {"an earlier key in a value", u"{b}", {{u"{a}", u"1"}, {u"{b}", u"{a}"}}, u"{a}"},
        {"a key in its own value", u"{a}{a}", {{u"{a}", u"{a}{a}"}}, u"{a}{a}{a}{a}"},
        {"numbers", u"#i #r", {{u"#i", 42}, {u"#r", 0.5}}, u"42 0.5"},
        {"what has no text", u"[a] [b]", {{u"[a]", Array{}}, {7, u"x"}, {u"", u"x"}}, u"[a] [b]"},
        {"keys that overlap themselves", u"aaaaa", {{u"AA", u"b"}}, u"bba"},
        {"letters that are several in the other case", u"STRASSE", {{u"straße", u"x"}}, u"x"},
        {"half a letter is no occurrence", u"ß", {{u"s", u"x"}}, u"ß"},
        {"an unpaired surrogate", u"\xDC00{a}\xD800", {{u"{A}", u"x"}}, u"\xDC00x\xD800"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(stringFromTemplate(row.text, row.values) == row.filled);
    }
}

TEST_CASE("a rating shows as stars, at most five") {
    CHECK(stringForRating(3, false) == u"★★★");
    CHECK(stringForRating(3, true) == u"★★★☆☆");
    CHECK(stringForRating(INT64_MAX, true) == u"★★★★★");
    CHECK(stringForRating(INT64_MIN, true) == u"☆☆☆☆☆");
    CHECK(stringForRating(0, false) == u"");
}

TEST_CASE("random strings are drawn evenly from letters and digits") {
    const String drawn = randomStringWithLength(62'000);
    REQUIRE(drawn.size() == 62'000);
    // Chi-squared with 61 degrees of freedom: above 150 once in 10^9 runs. A
    // remainder of bytes by 62 would come to about 500.
    double deviation = 0;
    for (const char16_t unit : std::set<char16_t>(drawn.begin(), drawn.end())) {
        REQUIRE((unit < 128 && std::isalnum(unit) != 0));
        const auto excess = static_cast<double>(std::ranges::count(drawn, unit) - 1000);
        deviation += excess * excess / 1000;
    }
    CHECK(deviation < 150);
    CHECK(randomStringWithLength(0).empty());
    CHECK(randomStringWithLength(SIZE_MAX).empty());
}

TEST_CASE("data that is valid in an encoding becomes a string") {
    struct Row {
        std::uint32_t encoding;  // as it is stored
        std::string_view bytes;
        std::optional<String> text;
    };
    const Row rows[] = {
        {10, "", u""},
        {1, "abc", u"abc"},
        {1, "ab\xE9", {}},
        {4, "\xC3\xA9\xF0\x9F\x98\x80\xEF\xBF\xBD", u"é\U0001F600\uFFFD"},
        {4, "\xEF\xBB\xBF\x61", u"a"},
        {4, "\xC0\xAF", {}},
        {4, "a\xC3", {}},
        {5, "\x80\xE9\xFF", u"\u0080éÿ"},
        {12, "\x80", u"€"},
        {11, "\xCF\xF0", u"Пр"},
        {8, "\x83\x41", u"ア"},
        {10, {"\0a", 2}, u"a"},
        {10, {"\xFF\xFE\x61\0", 4}, u"a"},
        {0x94000100, {"\xFF\xFE\x61\0", 4}, u"\uFEFFa"},
        {0x90000100, {"\0a\0", 3}, {}},
        {0x90000100, {"\xD8\0", 2}, {}},
        {0x98000100, {"\0\1\xF6\0", 4}, u"\U0001F600"},
        {77, "a", {}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.encoding);
        CHECK(stringWithData(bytesOf(row.bytes), TextEncoding{row.encoding}) == row.text);
    }
    const String lengthy(100'000, u'é');
    CHECK(stringWithData(bytesOf(toUTF8(lengthy)), TextEncoding::Utf8) == lengthy);
}

}  // namespace QZCore
