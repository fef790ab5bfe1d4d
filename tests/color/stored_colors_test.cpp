#include "QZCore/color/stored_colors.h"

#include "support/color_printing.h"
#include "support/log_capture.h"

namespace QZCore {

TEST_CASE("colours are stored as strings; a default stands for an absent key alone") {
    const testing::LogCapture log;
    constexpr Color kRed = Color::colorWithCalibratedRed(1, 0, 0, 1);
    const Color blue = Color::colorWithCalibratedRed(0, 0, 1, 1);
    Dictionary dictionary{{u"empty", u""}, {u"number", 7}, {u"archive", Data{1, 2, 3}}};
    Preferences preferences(dictionary);
    for (const std::optional<Color>& color : {std::optional(kRed), std::optional<Color>()}) {
        setColor(dictionary, color, u"string");
        setColor(preferences, color, u"string");
        CHECK(dictionary.objectForKey(u"string") == Value(u"red"));
        CHECK(preferences.objectForKey(u"string") == Value(u"red"));
    }
    struct Row {
        StringView key;
        std::optional<Color> color, colorWithDefault;
    };
    const Row rows[] = {{u"string", kRed, kRed},
                        {u"absent", {}, blue},
                        {u"empty", {}, {}},
                        {u"number", {}, {}},
                        {u"archive", {}, {}}};
    for (const Row& row : rows) {
        CAPTURE(row.key);
        CHECK(colorForKey(dictionary, row.key) == row.color);
        CHECK(colorForKey(dictionary, row.key, blue) == row.colorWithDefault);
        CHECK(colorForKey(preferences, row.key) == row.color);
        CHECK(colorForKey(preferences, row.key, blue) == row.colorWithDefault);
    }
    CHECK(log.lines().empty());
    CHECK(colorForKey(Dictionary{{u"color", Value::boxed(kRed)}}, u"color", blue) == kRed);
    CHECK(log.lines().size() == 1);
    CHECK_FALSE(colorForKey(Preferences({{u"color", Value::boxed(kRed)}}), u"color", blue));
}

}  // namespace QZCore
