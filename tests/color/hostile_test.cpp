#include <limits>
#include <random>

#include "QZCore/color.h"
#include "support/color_printing.h"
#include "support/exact_copy.h"
#include "support/log_capture.h"

namespace QZCore {

TEST_CASE("every short text reads, and its colour's string is stable from the second reading on") {
    const testing::LogCapture log;
    const StringView pieces[] = {u"#",  u"rgb(", u"rgba", u"rgba(", u")",  u",",      u"0",
                                 u"ff", u"25",   u"-",    u".",     u"e9", u" ",      u"o",
                                 u"@",  u"red",  u"Sy",   u"1e999", u"\n", u"\xDC00", u"\u0130"};
    std::mt19937 random(5);
    for (int i = 0; i < 50'000; ++i) {
        String text;
        for (auto left = random() % 14; left > 0; --left) {
            text += pieces[random() % std::size(pieces)];
        }
        CAPTURE(text);
        const testing::ExactCopy exact(text);
        (void)Color::colorForHexString(exact);
        (void)Color::colorForRGBString(exact);
        const auto color = Color::colorForString(exact);
        REQUIRE(color.has_value() == !text.empty());
        if (!color) continue;
        const String once = Color::colorForString(color->stringForColor())->stringForColor();
        REQUIRE(Color::colorForString(once)->stringForColor() == once);
    }
}

TEST_CASE("long texts read in one sweep") {
    const testing::LogCapture log;
    constexpr std::size_t kLength = 1'000'000;
    CHECK(Color::colorForString(u"rgb(" + String(kLength, u',') + u")") ==
          Color::colorWithCalibratedRed(0, 0, 0, 1));
    CHECK(Color::colorForString(u"rgba(ff,,," + String(kLength, u'7')) ==
          Color::colorWithCalibrated255Red(0, 0, 255, std::numeric_limits<double>::infinity()));
    CHECK(Color::colorForString(String(kLength, u'\u0130')) == Color::blackColor());
    CHECK(log.lines().at(0).size() == 2 * kLength + 18);
}

}  // namespace QZCore
