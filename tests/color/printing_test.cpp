#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string>

#include "QZCore/color.h"
#include "support/color_printing.h"
#include "support/preference_setting.h"

namespace QZCore {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

Color rgba(double red, double green, double blue, double alpha) {
    return Color::colorWithCalibratedRed(red, green, blue, alpha);
}

Color white(double level, double alpha) { return Color::colorWithCalibratedWhite(level, alpha); }

Color device(double red, double green, double blue, double alpha) {
    return Color::colorWithDeviceRed(red, green, blue, alpha);
}

testing::PreferenceSetting hexAlpha(bool isOn) { return {u"Color Hex RGBA", isOn}; }

/// The general form of a colour, as the C library prints it where numbers have
/// a decimal point.
String printedByC(const Color& color, bool isHexAlpha) {
    int steps[3];
    const double components[] = {color.redComponent(), color.greenComponent(),
                                 color.blueComponent()};
    for (int i = 0; i < 3; ++i) steps[i] = static_cast<int>(std::nearbyint(components[i] * 255));
    const auto* format = color.alphaComponent() == 1 ? "#%02x%02x%02x"
                         : isHexAlpha                ? "rgba(%02x,%02x,%02x,%f)"
                                                     : "rgb(%d,%d,%d,%f)";
    char text[400];
    const std::string locale = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "C");
    std::snprintf(text, sizeof text, format, steps[0], steps[1], steps[2], color.alphaComponent());
    std::setlocale(LC_NUMERIC, locale.c_str());
    return fromUTF8(text);
}

}  // namespace

TEST_CASE("a colour prints in a fixed form, as a name, or by its components") {
    struct Row {
        const char* why;
        Color color;
        StringView decimal;
        StringView hex;
    };
    const Row rows[] = {
        {"clear", Color::clearColor(), u"rgba(00,00,00,0.000000)", u"rgba(00,00,00,0.000000)"},
        {"clear by value", rgba(0, 0, 0, -0.0), u"rgba(00,00,00,0.000000)",
         u"rgba(00,00,00,0.000000)"},
        {"white", Color::whiteColor(), u"#ffffff", u"#ffffff"},
        {"black", Color::blackColor(), u"#000000", u"#000000"},
        {"the colour of text", Color::textColor(), u"#000000", u"#000000"},
        {"black shadow", rgba(0, 0, 0, 0.75), u"rgba(00,00,00,0.750000)",
         u"rgba(00,00,00,0.750000)"},
        {"grey shadow", white(0, 0.75), u"rgba(00,00,00,0.750000)", u"rgba(00,00,00,0.750000)"},
        {"half black", rgba(0, 0, 0, 0.5), u"rgba(00,00,00,0.500000)", u"rgba(00,00,00,0.500000)"},
        {"half black as a grey", white(0, 0.5), u"rgb(0,0,0,0.500000)", u"rgba(00,00,00,0.500000)"},
        {"a name", rgba(1, 0, 0, 1), u"red", u"red"},
        {"a name that is not read", white(1.0 / 3.0, 1), u"darkGray", u"darkGray"},
        {"a named colour in another model", device(1, 0, 0, 1), u"#ff0000", u"#ff0000"},
        {"white in another model", device(1, 1, 1, 1), u"#ffffff", u"#ffffff"},
        {"clear in another model", device(0, 0, 0, 0), u"rgb(0,0,0,0.000000)",
         u"rgba(00,00,00,0.000000)"},
        {"ties go to the even step", rgba(0.5, 0.5, 0.5, 1), u"#808080", u"#808080"},
        {"translucent", rgba(0.5, 0.5, 0.5, 0.25), u"rgb(128,128,128,0.250000)",
         u"rgba(80,80,80,0.250000)"},
        {"components out of range", rgba(300 / 255.0, -1 / 255.0, 0, 1), u"#12cffffffff00",
         u"#12cffffffff00"},
        {"components beyond integers", rgba(1e300, -kInfinity, kNaN, 0.5),
         u"rgb(2147483647,-2147483648,0,0.500000)", u"rgba(7fffffff,80000000,00,0.500000)"},
        {"alpha that is not a number", rgba(0, 0, 1, kNaN), u"rgb(0,0,255,nan)",
         u"rgba(00,00,ff,nan)"},
        {"infinite alpha", rgba(0, 0, 1, kInfinity), u"rgb(0,0,255,inf)", u"rgba(00,00,ff,inf)"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(row.color.stringForColor() == row.decimal);
        const auto setting = hexAlpha(true);
        CHECK(Color::stringForColor(row.color) == String(row.hex));
    }
    CHECK(Color::stringForColor(std::nullopt) == std::nullopt);
}

TEST_CASE("every named colour prints as its name but clear, white and black") {
    const NamedColors& names = Color::sharedNamedColors();
    CHECK(names.count() == 26);
    for (const auto& [name, color] : names) {
        const String printed = color.stringForColor();
        if (name == u"clear")
            CHECK(printed == Color::clearColorAsString());
        else if (name == u"white")
            CHECK(printed == Color::whiteColorAsString());
        else if (name == u"black")
            CHECK(printed == Color::blackColorAsString());
        else
            CHECK(printed == name);
    }
}

TEST_CASE("the general form is what the C library prints") {
    for (const bool isHexAlpha : {false, true}) {
        const auto setting = hexAlpha(isHexAlpha);
        for (int i = 1; i < 4000; ++i) {
            const double red = std::sin(i) * 1.1;
            const double alpha = i % 4 == 0 ? 1 : std::cos(i * 7) * std::pow(10, i % 9 - 6);
            const Color color = rgba(red, i / 510.0, 1 - red * red, alpha);
            REQUIRE(color.stringForColor() == printedByC(color, isHexAlpha));
        }
    }
}

TEST_CASE("what prints reads back, and prints the same again") {
    for (const bool isHexAlpha : {false, true}) {
        const auto setting = hexAlpha(isHexAlpha);
        for (int i = 0; i < 0x10000; ++i) {
            const double alpha = i % 3 == 0 ? 1 : (i % 64) * 15625 / 1e6;
            const Color color =
                Color::colorWithCalibrated255Red(i >> 8, i & 0xFF, i * 37 & 0xFF, alpha);
            const String printed = color.stringForColor();
            const Color read = Color::colorForString(printed).value();
            REQUIRE(read.stringForColor() == printed);
            REQUIRE(read.redComponent() == color.redComponent());
            REQUIRE(read.greenComponent() == color.greenComponent());
            REQUIRE(read.blueComponent() == color.blueComponent());
            REQUIRE(read.alphaComponent() == color.alphaComponent());
        }
    }
}

TEST_CASE("lists of colours print one by one") {
    const std::vector<Color> colors{Color::whiteColor(), rgba(1, 0, 0, 1)};
    CHECK(Color::convertColorsToColorStrings(colors) == std::vector<String>{u"#ffffff", u"red"});
    CHECK(Color::convertColorsToColorStrings({}).empty());
}

}  // namespace QZCore
