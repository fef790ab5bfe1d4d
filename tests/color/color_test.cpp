#include "QZCore/color.h"

#include <cmath>

#include "support/color_printing.h"
#include "support/preference_setting.h"

namespace QZCore {
namespace {

Color rgba(double red, double green, double blue, double alpha) {
    return Color::colorWithCalibratedRed(red, green, blue, alpha);
}

Color white(double level, double alpha) { return Color::colorWithCalibratedWhite(level, alpha); }

}  // namespace

TEST_CASE("colours are equal when model, components and alpha are") {
    const Color colors[] = {
        white(0.5, 1),      rgba(0.5, 0.5, 0.5, 1),   Color::colorWithDeviceRed(0.5, 0.5, 0.5, 1),
        rgba(0, 0, 0, 1),   rgba(0, 0, 0, 0),         rgba(0, 0, 1, 1),
        rgba(0, 1, 0, 1),   rgba(1, 0, 0, 1),         Color(),
        Color::textColor(), Color::controlBlueColor()};
    for (const Color& a : colors) {
        for (const Color& b : colors) {
            CHECK((a == b) == (&a == &b));
            CHECK((hashOf(a) == hashOf(b)) == (&a == &b));
        }
    }
    CHECK(rgba(0, 0, 0, 0) == rgba(-0.0, 0, 0, 0));
    CHECK(hashOf(rgba(0, 0, 0, 0)) == hashOf(rgba(-0.0, 0, 0, 0)));
    CHECK(Value::boxed(Color::whiteColor()) == Value::boxed(white(1, 1)));
    CHECK(Color::blackColor().isEqualByString(Color::textColor()));
    CHECK_FALSE(rgba(1, 0, 0, 1).isEqualByString(Color::colorWithDeviceRed(1, 0, 0, 1)));
}

TEST_CASE("fixed colours are known by identity, or by their string when a preference says so") {
    struct Row {
        const char* why;
        Color color;
        bool isClear = false, isWhite = false, isBlack = false;
        bool printsWhite = false, printsBlack = false;
    };
    const Row rows[] = {
        {"clear", Color::clearColor(), true},
        {"alpha 0", rgba(0, 0, 0, 0)},
        {"white", Color::whiteColor(), false, true, false, true},
        {"equal to white", white(1, 1), false, false, false, true},
        {"black", Color(), false, false, true, false, true},
        {"nearly black", rgba(0.001, 0, 0, 1), false, false, false, false, true},
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

TEST_CASE("components of 0 to 255 are divided, alpha is not") {
    CHECK(Color::colorWithCalibrated255Red(51, 102, 153, 0.5) == rgba(0.2, 0.4, 0.6, 0.5));
    CHECK(Color::colorWithCalibrated255Red(0, 0, 510) == rgba(0, 0, 2, 1));
    CHECK(Color::colorWithDevice255Red(255, 0, 51) == Color::colorWithDeviceRed(1, 0, 0.2, 1));
    CHECK(Color::colorWithCalibrated255White(51) == white(0.2, 1));
    CHECK(Color::colorWithCalibrated255White(51, 0.5) == white(0.2, 0.5));
}

TEST_CASE("hue, saturation and lightness give components") {
    struct Row {
        double hue, saturation, lightness;
        StringView printed;
    };
    const Row rows[] = {
        {0, 1, 0.5, u"red"},
        // One of each sixth of the circle, at a quarter of it.
        {1 / 24.0, 0.6, 0.2, u"#522414"},
        {5 / 24.0, 0.6, 0.75, u"#d2e699"},
        {9 / 24.0, 1, 0.4, u"#00cc33"},
        {13 / 24.0, 0.3, 0.6, u"#7aa8b8"},
        {17 / 24.0, 0.9, 0.8, u"#b59efa"},
        {21 / 24.0, 0.8, 0.3, u"#8a0f6b"},
        // The ends of lightness and saturation.
        {0.3, 0, 0.2, u"#333333"},
        {0.3, 1, 1, u"#ffffff"},
        {0.3, 1, 0, u"#000000"},
        // Beyond the ranges.
        {1, 1, 0.5, u"red"},
        {-1.5, 1, 0.5, u"cyan"},
        {2, 1, 1.5, u"#ffffff"},
        {NAN, NAN, NAN, u"#000000"},
        {INFINITY, 1, 0.5, u"red"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.hue);
        CAPTURE(row.lightness);
        const Color color = Color::colorWithHue(row.hue, row.saturation, row.lightness, 1);
        CHECK(color.stringForColor() == row.printed);
    }
    CHECK(Color::colorWithHue(0, 1, 0.5, 7).alphaComponent() == 7);
}

TEST_CASE("the named tables are each other's inverse and know exact spellings only") {
    CHECK(Color::sharedNamedColors().count() == 26);
    CHECK(Color::sharedNamedColorsReversed().count() == 26);
    for (const auto& [name, color] : Color::sharedNamedColors()) {
        CHECK(Color::sharedNamedColorsReversed().find(color) == name);
        if (name != u"clear" && name != u"white" && name != u"black")
            CHECK(color.stringForColor() == name);
    }
    const NamedColor rows[] = {
        {u"darkGray", white(1 / 3.0, 1)},   {u"lightGray", white(2 / 3.0, 1)},
        {u"gray", white(0.5, 1)},           {u"white", white(1, 1)},
        {u"red", rgba(1, 0, 0, 1)},         {u"green", rgba(0, 1, 0, 1)},
        {u"blue", rgba(0, 0, 1, 1)},        {u"cyan", rgba(0, 1, 1, 1)},
        {u"yellow", rgba(1, 1, 0, 1)},      {u"magenta", rgba(1, 0, 1, 1)},
        {u"orange", rgba(1, 0.5, 0, 1)},    {u"purple", rgba(0.5, 0, 0.5, 1)},
        {u"brown", rgba(0.6, 0.4, 0.2, 1)}, {u"clear", rgba(0, 0, 0, 0)},
    };
    for (const NamedColor& row : rows) {
        CHECK(Color::sharedNamedColors().find(row.name) == row.color);
    }
    for (const StringView name : {u"", u"Red", u"darkgray", u"re", u"redd", u"zebra"}) {
        CHECK(Color::sharedNamedColors().find(name) == std::nullopt);
    }
    for (const Color& color : {rgba(0, 0, 0, 1), rgba(NAN, 0, 0, 1), rgba(1, 0, 0, NAN)}) {
        CHECK(Color::sharedNamedColorsReversed().find(color) == std::nullopt);
    }
}

}  // namespace QZCore
