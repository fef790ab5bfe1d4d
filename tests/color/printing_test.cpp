#include <cmath>

#include "QZCore/color.h"
#include "support/color_printing.h"
#include "support/preference_setting.h"

namespace QZCore {
namespace {

Color rgba(double red, double green, double blue, double alpha) {
    return Color::colorWithCalibratedRed(red, green, blue, alpha);
}

testing::PreferenceSetting hexAlpha(bool isOn) { return {u"Color Hex RGBA", isOn}; }

}  // namespace

TEST_CASE("a colour prints in a fixed form, as a name, or by its components") {
    struct Row {
        const char* why;
        Color color;
        StringView decimal;
        StringView hex;  // empty when it is the same
    };
    const Color halfGrey = Color::colorWithCalibratedWhite(0, 0.5);
    const Color shadow = Color::colorWithCalibratedWhite(0, 0.75);
    const Row rows[] = {
        {"clear", Color::clearColor(), u"rgba(00,00,00,0.000000)", {}},
        {"clear by value", rgba(0, 0, 0, -0.0), u"rgba(00,00,00,0.000000)", {}},
        {"white", Color::whiteColor(), u"#ffffff", {}},
        {"black", Color::blackColor(), u"#000000", {}},
        {"black shadow", rgba(0, 0, 0, 0.75), u"rgba(00,00,00,0.750000)", {}},
        {"grey shadow", shadow, u"rgba(00,00,00,0.750000)", {}},
        {"half black", rgba(0, 0, 0, 0.5), u"rgba(00,00,00,0.500000)", {}},
        {"half grey", halfGrey, u"rgb(0,0,0,0.500000)", u"rgba(00,00,00,0.500000)"},
        {"another model", Color::colorWithDeviceRed(1, 0, 0, 1), u"#ff0000", {}},
        {"to the nearest", rgba(0.498, 0.502, 126.5 / 255, 1), u"#7f807e", {}},
        {"ties", rgba(0.5, 0.5, 0.5, 0.25), u"rgb(128,128,128,0.250000)",
         u"rgba(80,80,80,0.250000)"},
        {"out of range", rgba(300 / 255.0, -1 / 255.0, 0, 1), u"#12cffffffff00", {}},
        {"beyond integers", rgba(1e300, -INFINITY, NAN, 0.5),
         u"rgb(2147483647,-2147483648,0,0.500000)", u"rgba(7fffffff,80000000,00,0.500000)"},
        {"no number", rgba(0, 0, 1, NAN), u"rgb(0,0,255,nan)", u"rgba(00,00,ff,nan)"},
        {"six decimals", rgba(0, 0, 1, -0.12345678), u"rgb(0,0,255,-0.123457)",
         u"rgba(00,00,ff,-0.123457)"},
        {"infinite", rgba(0, 0, 1, INFINITY), u"rgb(0,0,255,inf)", u"rgba(00,00,ff,inf)"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(row.color.stringForColor() == row.decimal);
        const auto setting = hexAlpha(true);
        CHECK(*Color::stringForColor(row.color) == (row.hex.empty() ? row.decimal : row.hex));
    }
    CHECK(Color::stringForColor(std::nullopt) == std::nullopt);
}

TEST_CASE("what prints reads back") {
    for (const bool isHexAlpha : {false, true}) {
        const auto setting = hexAlpha(isHexAlpha);
        for (int i = 1; i < 0x10000; ++i) {
            const double alpha = i % 3 == 0 ? 1 : (i % 63 + 1) * 15625 / 1e6;
            const Color color =
                Color::colorWithCalibrated255Red(i >> 8, i & 0xFF, i * 37 & 0xFF, alpha);
            REQUIRE(Color::colorForString(color.stringForColor()) == color);
        }
    }
}

TEST_CASE("lists of colours are printed and read one by one, without what is none") {
    const std::vector<Color> colors{Color::whiteColor(), rgba(1, 0, 0, 1)};
    CHECK(Color::convertColorsToColorStrings(colors) == std::vector<String>{u"#ffffff", u"red"});
    CHECK(Color::convertColorStringsToColors({u"", u"#ffffff", u"", u"red"}) == colors);
}

}  // namespace QZCore
