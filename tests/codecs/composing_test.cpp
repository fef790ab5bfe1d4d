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
        {"every occurrence, in any case",
         u"{Name} and {NAME}!",
         {{u"{name}", u"Ann"}},
         u"Ann and Ann!"},
        {"delimiters are the key's own", u"name {name}", {{u"name", u"x"}}, u"x {x}"},
        {"a value with a later key is filled in",
         u"{a}",
         {{u"{a}", u"<{b}>"}, {u"{b}", u"1"}},
         u"<1>"},
        {"a value with an earlier key is not", u"{b}", {{u"{a}", u"1"}, {u"{b}", u"{a}"}}, u"{a}"},
        {"a value that is its own key", u"{a}{a}", {{u"{a}", u"{a}{a}"}}, u"{a}{a}{a}{a}"},
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
    CHECK(stringForRating(7, true) == u"★★★★★");
    CHECK(stringForRating(0, true) == u"☆☆☆☆☆");
    CHECK(stringForRating(-2147483647 - 1, true) == u"☆☆☆☆☆");
    CHECK(stringForRating(-1, false) == u"");
}

TEST_CASE("random strings are drawn evenly from letters and digits") {
    constexpr std::size_t kDraws = 62'000;
    const String drawn = randomStringWithLength(kDraws);
    REQUIRE(drawn.size() == kDraws);
    std::vector<double> counts(128);
    for (const char16_t unit : drawn) {
        REQUIRE(unit < 128);
        REQUIRE(std::isalnum(unit) != 0);
        counts[unit] += 1;
    }
    // Chi-squared with 61 degrees of freedom: above 150 once in 10^9 runs. A
    // remainder of bytes by 62 would come to about 500.
    double deviation = 0;
    for (const char16_t unit : std::set<char16_t>(drawn.begin(), drawn.end())) {
        deviation += (counts[unit] - 1000) * (counts[unit] - 1000) / 1000;
    }
    CHECK(deviation < 150);
    CHECK(randomStringWithLength(0).empty());
    CHECK(randomStringWithLength(SIZE_MAX).empty());
}

TEST_CASE("data that is valid in an encoding becomes a string") {
    struct Row {
        const char* why;
        std::string_view bytes;
        TextEncoding encoding;
        std::optional<String> text;
    };
    using enum TextEncoding;
    const Row rows[] = {
        {"nothing", "", Utf16, u""},
        {"seven bits", "abc", Ascii, u"abc"},
        {"an eighth bit", "ab\xE9", Ascii, std::nullopt},
        {"UTF-8", "\xC3\xA9\xF0\x9F\x98\x80", Utf8, u"é\U0001F600"},
        {"a replacement character that was meant", "\xEF\xBF\xBD", Utf8, u"\uFFFD"},
        {"a mark before UTF-8",
         "\xEF\xBB\xBF"
         "a",
         Utf8, u"a"},
        {"an overlong form", "\xC0\xAF", Utf8, std::nullopt},
        {"a surrogate in UTF-8", "\xED\xA0\x80", Utf8, std::nullopt},
        {"a piece of a character at the end", "a\xC3", Utf8, std::nullopt},
        {"any byte in Latin 1", "\x80\xE9\xFF", IsoLatin1, u"\u0080éÿ"},
        {"Windows", "\x80", Windows1252, u"€"},
        {"Cyrillic", "\xCF\xF0", Windows1251, u"Пр"},
        {"Japanese", "\x83\x41", ShiftJis, u"ア"},
        {"UTF-16 without a mark", {"\0a", 2}, Utf16, u"a"},
        {"UTF-16 with a mark",
         {"\xFF\xFE"
          "a\0",
          4},
         Utf16,
         u"a"},
        {"a mark where the order is known",
         {"\xFF\xFE"
          "a\0",
          4},
         Utf16LittleEndian,
         u"\uFEFFa"},
        {"an odd byte", {"\0a\0", 3}, Utf16BigEndian, std::nullopt},
        {"an unpaired surrogate", {"\xD8\0", 2}, Utf16BigEndian, std::nullopt},
        {"UTF-32", {"\0\1\xF6\0", 4}, Utf32BigEndian, u"\U0001F600"},
        {"beyond the last code point", {"\0\x11\0\0", 4}, Utf32BigEndian, std::nullopt},
        {"no encoding", "a", static_cast<TextEncoding>(77), std::nullopt},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(stringWithData(bytesOf(row.bytes), row.encoding) == row.text);
    }
    const String lengthy(100'000, u'é');
    CHECK(stringWithData(bytesOf(toUTF8(lengthy)), Utf8) == lengthy);
}

TEST_CASE("the numbers of encodings are those that are stored") {
    CHECK(static_cast<std::uint32_t>(TextEncoding::Ascii) == 1);
    CHECK(static_cast<std::uint32_t>(TextEncoding::Utf8) == 4);
    CHECK(static_cast<std::uint32_t>(TextEncoding::IsoLatin1) == 5);
    CHECK(static_cast<std::uint32_t>(TextEncoding::Utf16LittleEndian) == 0x94000100);
}

}  // namespace QZCore
