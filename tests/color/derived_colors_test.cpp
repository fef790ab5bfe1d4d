#include <cmath>

#include "QZCore/color.h"
#include "support/color_printing.h"

namespace QZCore {
namespace {

Color rgb(double red, double green, double blue, double alpha = 1) {
    return Color::colorWithCalibratedRed(red, green, blue, alpha);
}

}  // namespace

TEST_CASE("labels are black on light and on nearly transparent fills") {
    struct Row {
        const char* why;
        Color fill;
        bool black;
    };
    const Row rows[] = {
        {"white", Color::whiteColor(), true},
        {"black", Color::blackColor(), false},
        {"blue", rgb(0, 0, 1), false},
        {"green is just too dark", rgb(0, 1, 0), false},
        {"yellow", rgb(1, 1, 0), true},
        {"the threshold, reached by rounding", rgb(0.6, 0.6, 0.6), true},
        {"just below it", rgb(0.5999999, 0.5999999, 0.5999999), false},
        {"nearly transparent", rgb(0, 0, 0, 0.1), true},
        {"not nearly enough", rgb(0, 0, 0, 0.2), false},
        {"no numbers", rgb(NAN, NAN, NAN, NAN), false},
        {"beyond the range", rgb(2, 0, 0), true},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(row.fill.shouldUseBlackForLabel() == row.black);
        CHECK(row.fill.appropriateLabelColor().isBlackColor() == row.black);
        CHECK(row.fill.appropriateLabelColor().isWhiteColor() != row.black);
    }
}

TEST_CASE("emboldening changes saturation and brightness by the factor") {
    struct Row {
        const char* why;
        Color color;
        float factor;
        Color expected;
    };
    const Color brown = rgb(0.6, 0.4, 0.2, 0.5);
    const Row rows[] = {
        {"1 is the colour itself", Color::blackColor(), 1, Color::blackColor()},
        {"no number too", brown, NAN, brown},
        {"0 is white for any hue", brown, 0, rgb(1, 1, 1, 0.5)},
        {"below 0 counts as 0", brown, -3, rgb(1, 1, 1, 0.5)},
        {"2 is a whole step darker", brown, 2, rgb(0, 0, 0, 0.5)},
        {"above 2 counts as 2", brown, INFINITY, rgb(0, 0, 0, 0.5)},
        {"stronger and darker", rgb(0.5, 0.75, 1), 1.25F, rgb(0.28125, 0.515625, 0.75)},
        {"paler and lighter", rgb(0, 0, 0.5), 0.5F, rgb(0.5, 0.5, 1)},
        {"greys have no hue", rgb(0.5, 0.5, 0.5), 0.75F, rgb(0.75, 0.75, 0.75)},
        {"components are clamped", rgb(5, -1, NAN), 1.5F, rgb(0.5, 0, 0)},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(row.color.emboldenedColorByPercentage(row.factor) == row.expected);
    }
}

TEST_CASE("emboldening by next to nothing keeps every hue") {
    constexpr float kNextToOne = 1.0000001F;
    for (int i = 0; i < 6 * 6 * 6; ++i) {
        const Color color = rgb(i % 6 / 5.0, i / 6 % 6 / 5.0, i / 36 / 5.0, 0.5);
        CAPTURE(color);
        CHECK(color.emboldenedColorByPercentage(kNextToOne)
                  .isEqualByString(rgb(color.redComponent(), color.greenComponent(),
                                       color.blueComponent(), 0.5)));
    }
}

}  // namespace QZCore
