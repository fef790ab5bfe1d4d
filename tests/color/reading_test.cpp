#include <limits>

#include "QZCore/color.h"
#include "support/color_printing.h"
#include "support/log_capture.h"

namespace QZCore {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr Color kRed = Color::colorWithCalibratedRed(1, 0, 0, 1);
constexpr Color kHalfRed = Color::colorWithCalibratedRed(1, 0, 0, 0.5);

Color rgb(double red, double green, double blue, double alpha = 1) {
    return Color::colorWithCalibrated255Red(red, green, blue, alpha);
}

struct Row {
    const char* why;
    String string;
    Color color;
};

}  // namespace

TEST_CASE("any colour string is told by its start, whatever its case") {
    const testing::LogCapture log;
    const Row rows[] = {
        {"hex", u"#ff8000", rgb(255, 128, 0)},
        {"upper-case white is the white colour", u"#FFFFFF", Color::whiteColor()},
        {"hex components", u"RGBA(FF,00,00,0.500000)", kHalfRed},
        {"decimal components behind the prefix of hex ones", u"rgba(255,0,0,1)", rgb(2, 0x55, 0)},
        {"the prefix of hex components alone", u"rgba", rgb(0, 0, 0)},
        {"decimal components", u"Rgb(255,0,0)", kRed},
        {"a name", u"Purple", Color::colorWithCalibratedRed(0.5, 0, 0.5, 1)},
        {"a grey name", u"gray", Color::colorWithCalibratedWhite(0.5, 1)},
        {"a letter beyond ASCII whose lower case is k", u"blac\u212A", Color::blackColor()},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(Color::colorForString(row.string) == row.color);
    }
    CHECK(Color::colorForString(u"") == std::nullopt);
    CHECK(log.lines().empty());
}

TEST_CASE("an unreadable colour string is black and logged in lower case") {
    const testing::LogCapture log;
    const String strings[] = {
        u"DarkGray", u"systemRed", u" #ffffff", u"rgb(1,2,3", u"red ", u"\u00C4\u0130", u"\xD800",
    };
    for (const String& string : strings) {
        CAPTURE(string);
        CHECK(Color::colorForString(string) == Color::blackColor());
    }
    CHECK(log.lines() == std::vector<String>{
                             u"bad color string: darkgray",
                             u"bad color string: systemred",
                             u"bad color string:  #ffffff",
                             u"bad color string: rgb(1,2,3",
                             u"bad color string: red ",
                             u"bad color string: \u00E4i\u0307",
                             u"bad color string: \xD800",
                         });
}

TEST_CASE("hex digits accumulate until a third comma or a foreign character") {
    const String tooLong = u"#" + String(33, u' ') + u"aabbccdd";
    const Row rows[] = {
        {"six digits", u"#a1B2c3", rgb(0xA1, 0xB2, 0xC3)},
        {"no number sign", u"a1b2c3", rgb(0xA1, 0xB2, 0xC3)},
        {"number signs and white space in front", u" #\t# 0a0b0c", rgb(10, 11, 12)},
        {"short forms are not expanded", u"#abc", rgb(0, 0x0A, 0xBC)},
        {"the last six digits count", u"#123456789", rgb(0x45, 0x67, 0x89)},
        {"more digits than a machine word holds", u"#11223344556677889900abcdef",
         rgb(0xAB, 0xCD, 0xEF)},
        {"letters o are zeros", u"#0O00o1", rgb(0, 0, 1)},
        {"white space and closing parentheses are skipped", u"#1 2)3\u2028456",
         rgb(0x12, 0x34, 0x56)},
        {"any other character ends the digits", u"#eceff1@22", rgb(0xEC, 0xEF, 0xF1)},
        {"a number sign after the first digit too", u"#12#34", rgb(0, 0, 0x12)},
        {"upper-case white is white, not the white colour", u"#FFFFFF", rgb(255, 255, 255)},
        {"no digits", u"zzz", rgb(0, 0, 0)},
        {"empty", u"", rgb(0, 0, 0)},
        {"digits beyond the first forty units are ignored", tooLong, rgb(0xAA, 0xBB, 0xCC)},
        {"upper-case prefix", u"RGBA(ff,00,00,0.5)", rgb(0, 0, 0)},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(Color::colorForHexString(row.string) == row.color);
    }
}

TEST_CASE("the alpha of a hex string follows its third comma") {
    const String longDigits = u"rgba(ff,00,00," + String(50, u' ') + u"0.25)";
    const String lateComma = u"rgba(ff,00,00" + String(30, u' ') + u",0.25)";
    const Row rows[] = {
        {"clear", u"rgba(0,0,0,0)", Color::clearColor()},
        {"a fraction", u"rgba(ff,00,00,0.500000)", kHalfRed},
        {"without prefix", u"ff,00,00,.5", kHalfRed},
        {"white space in front", u"rgba(ff,00,00, \n5e-1)", kHalfRed},
        {"what follows is ignored", u"rgba(ff,00,00,0.5,7", kHalfRed},
        {"not clamped", u"rgba(ff,00,00,-3)", rgb(255, 0, 0, -3)},
        {"too large a number", u"rgba(ff,00,00,1e999)", rgb(255, 0, 0, kInfinity)},
        {"no number", u"rgba(ff,00,00,x)", kRed},
        {"nothing", u"rgba(ff,00,00,", kRed},
        {"two commas only", u"rgba(ff,00,00)", kRed},
        {"a foreign character before the third comma", u"rgba(ff,00,00%,0.5)", kRed},
        {"an alpha beyond the first forty units", longDigits, rgb(255, 0, 0, 0.25)},
        {"a third comma beyond the first forty units", lateComma, kRed},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(Color::colorForHexString(row.string) == row.color);
    }
}

TEST_CASE("a decimal string has three parts, or four with an alpha") {
    const Row rows[] = {
        {"three parts", u"rgb(1,20,255)", rgb(1, 20, 255)},
        {"four parts", u"rgb(255,0,0,0.5)", kHalfRed},
        {"five parts have no alpha", u"rgb(1,2,3,0.5,5)", rgb(1, 2, 3)},
        {"six parts neither", u"rgb(1,2,3,0.5,5,6)", rgb(1, 2, 3)},
        {"two parts", u"rgb(255,0)", Color::blackColor()},
        {"no parts", u"rgb()", Color::blackColor()},
        {"white space and trailing junk", u"rgb( 1,\t2x,3.9, 0.5 %)", rgb(1, 2, 3, 0.5)},
        {"parts without a number", u"rgb(x,,-,y)", rgb(0, 0, 0, 0)},
        {"not clamped", u"rgb(-5,300,0,2)", rgb(-5, 300, 0, 2)},
        {"integers of 32 bits", u"rgb(99999999999,0,0)", rgb(2147483647, 0, 0)},
        {"upper-case prefix", u"RGB(1,2,3)", Color::blackColor()},
        {"no closing parenthesis", u"rgb(1,2,3) ", Color::blackColor()},
        {"no prefix", u"1,2,3)", Color::blackColor()},
        {"parentheses that overlap", u"rgb)", Color::blackColor()},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(Color::colorForRGBString(row.string) == row.color);
    }
}

TEST_CASE("a value reads as a colour when it holds a string or a colour") {
    const testing::LogCapture log;
    const Color clear = Color::clearColor();
    CHECK(Color::colorForString(Value(u"red")) == kRed);
    CHECK(Color::colorForString(Value(u"")) == std::nullopt);
    for (const Value& other : {Value(), Value(7), Value(Array{u"red"})}) {
        CHECK(Color::colorForString(other) == std::nullopt);
    }
    CHECK(log.lines().empty());

    const auto read = Color::colorForString(Value::boxed(clear));
    REQUIRE(read == clear);
    CHECK(read->isClearColor());
    CHECK(log.lines() == std::vector<String>{u"colorForString called with a NSColor!"});
}

TEST_CASE("a list of colour strings loses its empty strings") {
    const std::vector<String> strings{u"red", u"", u"#ff0000"};
    CHECK(Color::convertColorStringsToColors(strings) == std::vector<Color>{kRed, kRed});
    CHECK(Color::convertColorStringsToColors({}).empty());
}

}  // namespace QZCore
