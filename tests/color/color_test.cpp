#include "QZCore/color.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

#include "support/color_printing.h"
#include "support/preference_setting.h"

namespace QZCore {
namespace {

static_assert(std::is_trivially_copyable_v<Color> && sizeof(Color) == 5 * sizeof(double));

Color rgba(double red, double green, double blue, double alpha) {
    return Color::colorWithCalibratedRed(red, green, blue, alpha);
}

Color white(double level, double alpha) { return Color::colorWithCalibratedWhite(level, alpha); }

}  // namespace

TEST_CASE("colours are equal when model, components and alpha are") {
    const Color colors[] = {
        white(0.5, 1),
        rgba(0.5, 0.5, 0.5, 1),
        rgba(0.5, 0.5, 0.5, 0),
        Color::colorWithDeviceRed(0.5, 0.5, 0.5, 1),
        rgba(0, 0, 0, 1),
        rgba(0, 0, 1, 1),
        rgba(0, 1, 0, 1),
        rgba(1, 0, 0, 1),
        Color(),
        Color::textColor(),
    };
    for (const Color& a : colors) {
        for (const Color& b : colors) {
            CHECK((a == b) == (&a == &b));
            CHECK((hashOf(a) == hashOf(b)) == (&a == &b));
        }
    }
    CHECK(rgba(0, 0, 0, 0) == rgba(-0.0, 0, 0, 0));
    CHECK(hashOf(rgba(0, 0, 0, 0)) == hashOf(rgba(-0.0, 0, 0, 0)));
    CHECK(Value::boxed(Color::whiteColor()) == Value::boxed(white(1, 1)));
    CHECK(Value::boxed(rgba(1, 0, 0, 1)).description() == u"red");
}

TEST_CASE("fixed colours are known by identity, or by their string when a preference says so") {
    struct Row {
        const char* why;
        Color color;
        bool isClear, isWhite, isBlack;
        bool printsWhite, printsBlack;
    };
    const Row rows[] = {
        {"clear", Color::clearColor(), true, false, false, false, false},
        {"clear by name", *Color::colorForString(u"clear"), true, false, false, false, false},
        {"alpha 0", rgba(0, 0, 0, 0), false, false, false, false, false},
        {"white", Color::whiteColor(), false, true, false, true, false},
        {"white by digits", *Color::colorForString(u"#ffffff"), false, true, false, true, false},
        {"equal to white", white(1, 1), false, false, false, true, false},
        {"white of three components", rgba(1, 1, 1, 1), false, false, false, true, false},
        {"black", Color(), false, false, true, false, true},
        {"black by name", *Color::colorForString(u"black"), false, false, true, false, true},
        {"nearly black", rgba(0.001, 0, 0, 1), false, false, false, false, true},
        {"red", rgba(1, 0, 0, 1), false, false, false, false, false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(row.color.isClearColor() == row.isClear);
        CHECK(row.color.isWhiteColor() == row.isWhite);
        CHECK(row.color.isBlackColor() == row.isBlack);
        const testing::PreferenceSetting whites(u"isWhiteColor Compare Strings", true);
        CHECK(row.color.isWhiteColor() == row.printsWhite);
        CHECK(row.color.isBlackColor() == row.isBlack);
        const testing::PreferenceSetting blacks(u"isBlackColor Compare Strings", u"yes");
        CHECK(row.color.isBlackColor() == row.printsBlack);
    }
}

TEST_CASE("colours of different models can be equal by string") {
    CHECK(Color::whiteColor().isEqualByString(rgba(0.999, 1, 1, 1)));
    CHECK(Color::blackColor().isEqualByString(Color::textColor()));
    CHECK_FALSE(rgba(1, 0, 0, 1).isEqualByString(Color::colorWithDeviceRed(1, 0, 0, 1)));
}

TEST_CASE("components of 0 to 255 are divided, alpha is not") {
    CHECK(Color::colorWithCalibrated255Red(51, 102, 153, 0.5) == rgba(0.2, 0.4, 0.6, 0.5));
    CHECK(Color::colorWithCalibrated255Red(0, 0, 510) == rgba(0, 0, 2, 1));
    CHECK(Color::colorWithDevice255Red(255, 0, 51) == Color::colorWithDeviceRed(1, 0, 0.2, 1));
    CHECK(Color::colorWithCalibrated255White(51) == white(0.2, 1));
    CHECK(Color::colorWithCalibrated255White(51, 0.5) == white(0.2, 0.5));
    CHECK(white(0.2, 0.5).greenComponent() == 0.2);
}

TEST_CASE("hue, saturation and lightness give components") {
    struct Row {
        const char* why;
        double hue, saturation, lightness;
        StringView printed;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const Row rows[] = {
        {"red", 0, 1, 0.5, u"red"},
        {"green", 1 / 3.0, 1, 0.5, u"green"},
        {"orange", 1 / 12.0, 1, 0.5, u"orange"},
        {"a muted teal", 0.5, 0.5, 0.25, u"#206060"},
        {"a pale violet", 0.75, 1, 0.75, u"#bf80ff"},
        {"grey", 0.3, 0, 0.2, u"#333333"},
        {"lightness 1", 0.3, 1, 1, u"#ffffff"},
        {"lightness 0, where the saturation is undefined", 0.3, 1, 0, u"#000000"},
        {"a full turn", 1, 1, 0.5, u"red"},
        {"turns back and forth", -1.5, 1, 0.5, u"cyan"},
        {"beyond the range", 2, 1, 1.5, u"#ffffff"},
        {"not numbers", nan, nan, nan, u"#000000"},
        {"infinities", infinity, 1, 0.5, u"red"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const Color color = Color::colorWithHue(row.hue, row.saturation, row.lightness, 1);
        CHECK(color.stringForColor() == row.printed);
    }
    CHECK(Color::colorWithHue(0, 1, 0.5, 7).alphaComponent() == 7);
}

TEST_CASE("the extremes of the components are lightness plus and minus the chroma's half") {
    for (double hue = 0; hue < 1; hue += 0.01) {
        for (double lightness = 0.05; lightness < 1; lightness += 0.1) {
            const Color color = Color::colorWithHue(hue, 0.6, lightness, 1);
            const double half = 0.6 * std::min(lightness, 1 - lightness);
            const auto [low, high] =
                std::minmax({color.redComponent(), color.greenComponent(), color.blueComponent()});
            REQUIRE(high == doctest::Approx(lightness + half));
            REQUIRE(low == doctest::Approx(lightness - half));
        }
    }
}

TEST_CASE("the named tables are each other's inverse and know exact spellings only") {
    for (const auto& [name, color] : Color::sharedNamedColors()) {
        CHECK(Color::sharedNamedColors().find(name) == color);
        CHECK(Color::sharedNamedColorsReversed().find(color) == name);
    }
    CHECK(Color::sharedNamedColorsReversed().count() == Color::sharedNamedColors().count());
    for (const StringView name : {u"", u"Red", u"darkgray", u"re", u"redd", u"zebra"}) {
        CHECK(Color::sharedNamedColors().find(name) == std::nullopt);
    }
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Color& color : {rgba(0, 0, 0, 1), rgba(nan, 0, 0, 1), rgba(1, 0, 0, nan)}) {
        CHECK(Color::sharedNamedColorsReversed().find(color) == std::nullopt);
    }
}

}  // namespace QZCore
