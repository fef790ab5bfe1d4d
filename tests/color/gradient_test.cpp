#include "QZCore/color/gradient.h"

#include <cmath>

#include "support/color_printing.h"
#include "support/log_capture.h"
#include "support/preference_setting.h"
#include "support/random_texts.h"

namespace QZCore {
namespace {

Color halfRed() { return Color::colorWithCalibratedRed(1, 0, 0, 0.5); }

}  // namespace

TEST_CASE("gradient strings are read into stops") {
    struct Row {
        const char* why;
        StringView string;
        std::vector<GradientStop> stops;
    };
    const Color black = Color::blackColor();
    const Color white = Color::whiteColor();
    const Color red = Color::colorWithCalibratedRed(1, 0, 0, 1);
    const Row rows[] = {
        {"as written", u"#000000,0.000000,#ffffff,1.000000", {{black, 0}, {white, 1}}},
        {"a colour with commas",
         u"rgba(ff,00,00,0.500000),0.5,#ffffff,1",
         {{halfRed(), 0.5}, {white, 1}}},
        {"white space before a location", u"red, \t0.25x", {{red, 0.25}}},
        {"a location that is no number", u"red,here", {{red, 0}}},
        {"any order and any range", u"red,2,red,-1e3", {{red, 2}, {red, -1000}}},
        {"an unreadable colour", u"nonsense,1", {{black, 1}}},
        {"a blank before a colour", u" #ff0000,1", {{black, 1}}},
        {"capitals are no hex form",
         u"RGBA(ff,1",
         {{Color::colorWithCalibrated255Red(0, 0, 0xFF), 1}}},
        {"a colour cut short gives its turn away", u"rgba,0.5,red", {{red, 0.5}}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const testing::LogCapture log;
        const auto gradient = Gradient::gradientForString(row.string);
        REQUIRE(gradient);
        CHECK(gradient->stops == row.stops);
        for (const String& line : log.lines()) CHECK(line.starts_with(u"bad color string: "));
    }
}

TEST_CASE("what does not pair up is no gradient, and logged") {
    for (const StringView string :
         {u"#000000,0,#ffffff", u"red", u",", u",1", u"red,0,", u"rgba(ff,00,00,0.5)",
          u"rgb(255,0,0,0.5),0.5", u"rgba,rgba,rgba,rgba", u"red,1,,1", u"nonsense,1,nonsense"}) {
        CAPTURE(string);
        const testing::LogCapture log;
        CHECK_FALSE(Gradient::gradientForString(string));
        CHECK(log.lines() == std::vector<String>{u"Invalid gradient string: " + String(string)});
    }
    const testing::LogCapture log;
    CHECK_FALSE(Gradient::gradientForString(u""));
    CHECK(log.lines().empty());
}

TEST_CASE("what is written reads back, translucent colours if their form is hexadecimal") {
    const Gradient gradient{{{halfRed(), 0}, {Color::blackColor(), 1.0 / 3}, {halfRed(), 1}}};
    CHECK(gradient.stringForGradient() ==
          u"rgb(255,0,0,0.500000),0.000000,#000000,0.333333,rgb(255,0,0,0.500000),1.000000");
    const testing::PreferenceSetting hexAlpha{u"Color Hex RGBA", true};
    const String string = Gradient::stringForGradient(gradient).value();
    CHECK(string ==
          u"rgba(ff,00,00,0.500000),0.000000,#000000,0.333333,rgba(ff,00,00,0.500000),1.000000");
    CHECK(Gradient::gradientForString(string)->stringForGradient() == string);
    CHECK(Gradient{}.stringForGradient() == u"");
    CHECK(Gradient{{{Color::blackColor(), NAN}}}.stringForGradient() == u"#000000,nan");
}

TEST_CASE("gradients of very many stops are read and written in one sweep") {
    constexpr std::size_t kStopCount = 100'000;
    const testing::PreferenceSetting hexAlpha{u"Color Hex RGBA", true};
    const Gradient gradient{std::vector<GradientStop>(kStopCount, {halfRed(), 0.25})};
    const String string = gradient.stringForGradient().value();
    CHECK(Gradient::gradientForString(string) == gradient);
    const testing::LogCapture log;
    CHECK_FALSE(Gradient::gradientForString(String(10 * kStopCount, u',')));
}

TEST_CASE("any text is a gradient that comes back, or none") {
    testing::RandomTexts texts(u"rgba(),,,,#0f. 1e");
    const testing::PreferenceSetting hexAlpha{u"Color Hex RGBA", true};
    const testing::LogCapture log;
    for (int i = 0; i < 20'000; ++i) {
        const auto gradient = Gradient::gradientForString(texts.next(24));
        if (!gradient) continue;
        const String string = gradient->stringForGradient().value();
        const auto again = Gradient::gradientForString(string);
        REQUIRE(again);
        REQUIRE(again->stops.size() == gradient->stops.size());
    }
}

}  // namespace QZCore
