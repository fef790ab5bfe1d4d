#include "QZCore/foundation/text.h"

#include <cmath>
#include <limits>

#include "support/printing.h"

namespace QZCore {

TEST_CASE("leading numbers are read and the rest is ignored") {
    struct Row {
        const char* why;
        StringView text;
        std::int32_t integer;
        double real;
    };
    const Row rows[] = {
        {"digits", u"42", 42, 42},
        {"leading white space", u" \t\n7", 7, 7},
        {"trailing letters", u"12abc", 12, 12},
        {"signs", u"-3.5e1x", -3, -35},
        {"plus sign", u"+5", 5, 5},
        {"no number", u"abc", 0, 0},
        {"a sign alone", u"-", 0, 0},
        {"fraction without integer part", u".5", 0, 0.5},
        {"exponent without digits belongs to the rest", u"2e", 2, 2},
        {"too large", u"99999999999", std::numeric_limits<std::int32_t>::max(), 99999999999.0},
        {"too small", u"-99999999999", std::numeric_limits<std::int32_t>::min(), -99999999999.0},
        {"words for what is not finite", u"inf", 0, 0},
        {"beyond the range of doubles", u"1e999", 1, std::numeric_limits<double>::infinity()},
        {"below the range of doubles", u"1e-999", 1, 0},
        {"empty", u"", 0, 0},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(intValue(row.text) == row.integer);
        CHECK(doubleValue(row.text) == row.real);
    }
    CHECK(readDouble(u"  0.5)").length == 5);
    CHECK(readDouble(u"  )").length == 0);
}

TEST_CASE("a text is true when it starts with a positive number or says yes") {
    for (const StringView yes : {u"1", u"2x", u"YES", u"yes"}) CHECK(boolValue(yes));
    for (const StringView no : {u"0", u"-1", u"true", u"y", u"", u"yes "})
        CHECK_FALSE(boolValue(no));
}

TEST_CASE("UTF-8 and UTF-16 turn into each other, and faults into U+FFFD") {
    String all;
    for (char32_t point = 1; point < 0x110000; point += 61) {
        if (point < 0xD800 || point > 0xDFFF) appendCodePoint(all, point);
    }
    CHECK(fromUTF8(toUTF8(all)) == all);
    CHECK(toUTF8(String{u'a', char16_t(0xD800), u'b'}) ==
          "a\xEF\xBF\xBD"
          "b");
    CHECK(fromUTF8("\xC0\xAF") == u"\uFFFD\uFFFD");            // overlong
    CHECK(fromUTF8("\xED\xA0\x80") == u"\uFFFD\uFFFD\uFFFD");  // a surrogate
    CHECK(fromUTF8("\xF0\x9F\x98") == u"\uFFFD");              // cut off
    CHECK(fromUTF8("\xF4\x90\x80\x80x") == u"\uFFFD\uFFFD\uFFFD\uFFFDx");
}

TEST_CASE("numbers print without the host's locale") {
    CHECK(fixedString(0.5, 6) == u"0.500000");
    CHECK(fixedString(2.5, 0) == u"2");
    CHECK(fixedString(-0.25, 1) == u"-0.2");
    CHECK(fixedString(1e300, 2).size() == 304);
}

TEST_CASE("a number prints so that it reads back, in plain digits where people would") {
    struct Row {
        double value;
        StringView text;
    };
    const Row rows[] = {
        {0.1, u"0.1"},
        {0.0, u"0"},
        {-0.0, u"-0"},
        {100000, u"100000"},
        {-1.5e20, u"-150000000000000000000"},
        {1e21, u"1e+21"},
        {0.000001, u"0.000001"},
        {1e-7, u"1e-07"},
        {5e-324, u"5e-324"},
        {1.7976931348623157e308, u"1.7976931348623157e+308"},
        {-0.0000012345678901234567, u"-0.0000012345678901234567"},
        {HUGE_VAL, u"inf"},
        {-HUGE_VAL, u"-inf"},
        {std::nan(""), u"nan"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.text);
        CHECK(shortestString(row.value) == row.text);
        if (std::isfinite(row.value)) CHECK(doubleValue(row.text) == row.value);
    }
}

}  // namespace QZCore
