#include <cmath>

#include "QZCore/color.h"
#include "support/color_printing.h"
#include "support/log_capture.h"
#include "support/text_rows.h"

namespace QZCore {
namespace {

constexpr Color kRed = Color::colorWithCalibratedRed(1, 0, 0, 1);
constexpr Color kHalfRed = Color::colorWithCalibratedRed(1, 0, 0, 0.5);

Color rgb(double red, double green, double blue, double alpha = 1) {
    return Color::colorWithCalibrated255Red(red, green, blue, alpha);
}

}  // namespace

TEST_CASE("any colour string is told by its start, whatever its case") {
    const testing::LogCapture log;
    const auto read = [](StringView string) { return Color::colorForString(string).value(); };
    const testing::TextRow<Color> rows[] = {
        {"hex", u"#fF8000", rgb(255, 128, 0)},
        {"hex components", u"RGBA(FF,00,00,0.500000)", kHalfRed},
        {"decimal components behind the prefix of hex ones", u"rgba(255,0,0,1)", rgb(2, 0x55, 0)},
        {"the prefix of hex components alone", u"rgba", rgb(0, 0, 0)},
        {"decimal components", u"Rgb(255,0,0)", kRed},
        {"a name", u"Purple", Color::colorWithCalibratedRed(0.5, 0, 0.5, 1)},
        {"a grey name", u"gray", Color::colorWithCalibratedWhite(0.5, 1)},
        {"a letter beyond ASCII whose lower case is k", u"blac\u212A", Color::blackColor()},
    };
    testing::checkRows(rows, read);
    CHECK(Color::colorForString(u"") == std::nullopt);
    CHECK(Color::colorForString(u"#FFFFFF")->isWhiteColor());
    CHECK(Color::colorForString(u"Black")->isBlackColor());
    CHECK(Color::colorForString(u"Clear")->isClearColor());
    CHECK(log.lines().empty());
}

TEST_CASE("an unreadable colour string is black and logged in lower case") {
    const std::pair<StringView, StringView> rows[] = {
        {u"DarkGray", u"darkgray"}, {u"systemRed", u"systemred"},
        {u" #ffffff", u" #ffffff"}, {u"rgb(1,2,3", u"rgb(1,2,3"},
        {u"red ", u"red "},         {u"\u00C4\u0130", u"\u00E4i\u0307"},
        {u"\xD800", u"\xD800"},
    };
    for (const auto& [string, logged] : rows) {
        const testing::LogCapture log;
        CHECK(Color::colorForString(string) == Color::blackColor());
        CHECK(log.lines() == std::vector<String>{u"bad color string: " + String(logged)});
    }
}

TEST_CASE("hex digits accumulate until a third comma or a foreign character, then comes alpha") {
    const String digits = u"#" + String(33, u' ') + u"aabbccdd";
    const String lateAlpha = u"rgba(ff,00,00," + String(50, u' ') + u"0.25)";
    const String lateComma = u"rgba(ff,00,00" + String(30, u' ') + u",0.25)";
    const testing::TextRow<Color> rows[] = {
        {"six digits without a sign", u"a1B2c3", rgb(0xA1, 0xB2, 0xC3)},
        {"signs and white space in front", u" #\t# 0a0b0c", rgb(10, 11, 12)},
        {"short forms are not expanded", u"#abc", rgb(0, 0x0A, 0xBC)},
        {"the last six of many digits", u"#11223344556677889900abcdef", rgb(0xAB, 0xCD, 0xEF)},
        {"letters o are zeros", u"#0O00o1", rgb(0, 0, 1)},
        {"skipped between digits", u"#1 2)3\u2028456", rgb(0x12, 0x34, 0x56)},
        {"any other character ends the digits", u"#eceff1@22", rgb(0xEC, 0xEF, 0xF1)},
        {"a number sign after the first digit too", u"#12#34", rgb(0, 0, 0x12)},
        {"upper-case white is white, not the white colour", u"#FFFFFF", rgb(255, 255, 255)},
        {"empty", u"", rgb(0, 0, 0)},
        {"digits beyond the first forty units", digits, rgb(0xAA, 0xBB, 0xCC)},
        {"upper-case prefix", u"RGBA(ff,00,00,0.5)", rgb(0, 0, 0)},
        {"an alpha without prefix", u"ff,00,00,.5", kHalfRed},
        {"white space in front of it", u"rgba(ff,00,00, \n5e-1)", kHalfRed},
        {"what follows it", u"rgba(ff,00,00,0.5,7", kHalfRed},
        {"not clamped", u"rgba(ff,00,00,-3)", rgb(255, 0, 0, -3)},
        {"too large a number", u"rgba(ff,00,00,1e999)", rgb(255, 0, 0, INFINITY)},
        {"no number", u"rgba(ff,00,00,x)", kRed},
        {"two commas only", u"rgba(ff,00,00)", kRed},
        {"a foreign character before the third comma", u"rgba(ff,00,00%,0.5)", kRed},
        {"an alpha beyond the first forty units", lateAlpha, rgb(255, 0, 0, 0.25)},
        {"a third comma beyond the first forty units", lateComma, kRed},
    };
    testing::checkRows(rows, Color::colorForHexString);
    CHECK(Color::colorForHexString(u"rgba(0,0,0,0)").isClearColor());
    CHECK(Color::colorForHexString(u"rgba(00,00,00,0.000000)").isClearColor());
}

TEST_CASE("a decimal string has three parts, or four with an alpha") {
    const testing::TextRow<Color> rows[] = {
        {"three parts", u"rgb(1,20,255)", rgb(1, 20, 255)},
        {"four parts", u"rgb(255,0,0,0.5)", kHalfRed},
        {"five parts have no alpha", u"rgb(1,2,3,0.5,5)", rgb(1, 2, 3)},
        {"six parts neither", u"rgb(1,2,3,0.5,5,6)", rgb(1, 2, 3)},
        {"two parts", u"rgb(255,0)", Color::blackColor()},
        {"white space and trailing junk", u"rgb( 1,\t2x,3.9, 0.5 %)", rgb(1, 2, 3, 0.5)},
        {"parts without a number", u"rgb(x,,-,y)", rgb(0, 0, 0, 0)},
        {"not clamped", u"rgb(-5,99999999999,0,2)", rgb(-5, 2147483647, 0, 2)},
        {"upper-case prefix", u"RGB(1,2,3)", Color::blackColor()},
        {"no closing parenthesis", u"rgb(1,2,3) ", Color::blackColor()},
        {"no prefix", u"1,2,3)", Color::blackColor()},
    };
    testing::checkRows(rows, Color::colorForRGBString);
}

TEST_CASE("a value reads as a colour when it holds a string or a colour") {
    const testing::LogCapture log;
    CHECK(Color::colorForString(Value(u"red")) == kRed);
    for (const Value& other : {Value(), Value(u""), Value(7), Value(Array{u"red"})}) {
        CHECK(Color::colorForString(other) == std::nullopt);
    }
    CHECK(log.lines().empty());
    CHECK(Color::colorForString(Value::boxed(Color::clearColor()))->isClearColor());
    CHECK(log.lines() == std::vector<String>{u"colorForString called with a NSColor!"});
}

TEST_CASE("long texts read in one sweep") {
    const testing::LogCapture log;
    constexpr std::size_t kLength = 1'000'000;
    CHECK(Color::colorForString(u"rgb(" + String(kLength, u',') + u")") == rgb(0, 0, 0));
    CHECK(Color::colorForString(u"rgba(ff,,," + String(kLength, u'7')) == rgb(0, 0, 255, INFINITY));
    CHECK(Color::colorForString(String(kLength, u'\u0130')) == Color::blackColor());
}

}  // namespace QZCore
