#include "QZCore/color/stored_colors.h"

#include "support/color_printing.h"
#include "support/log_capture.h"

namespace QZCore {
namespace {

constexpr Color kRed = Color::colorWithCalibratedRed(1, 0, 0, 1);
constexpr Color kBlue = Color::colorWithCalibratedRed(0, 0, 1, 1);

Dictionary storedColors() {
    return {{u"string", u"red"},
            {u"empty", u""},
            {u"number", 7},
            {u"archive", Data{1, 2, 3}},
            {u"color", Value::boxed(kRed)}};
}

}  // namespace

TEST_CASE("the default stands for an absent key, never for a value that is no colour") {
    const testing::LogCapture log;
    const Dictionary dictionary = storedColors();
    const Preferences preferences(dictionary);
    struct Row {
        StringView key;
        std::optional<Color> color;
        std::optional<Color> colorWithDefault;
    };
    const Row rows[] = {
        {u"string", kRed, kRed}, {u"absent", {}, kBlue}, {u"empty", {}, {}},
        {u"number", {}, {}},     {u"archive", {}, {}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.key);
        CHECK(colorForKey(dictionary, row.key) == row.color);
        CHECK(colorForKey(dictionary, row.key, kBlue) == row.colorWithDefault);
        CHECK(colorForKey(preferences, row.key) == row.color);
        CHECK(colorForKey(preferences, row.key, kBlue) == row.colorWithDefault);
    }
    CHECK(colorForKey(preferences, u"color", kBlue) == std::nullopt);
    CHECK(log.lines().empty());
    CHECK(colorForKey(dictionary, u"color", kBlue) == kRed);
    CHECK(log.lines().size() == 1);
}

TEST_CASE("colours are stored as strings, and no colour stores nothing") {
    constexpr StringView kKey = u"key";
    Dictionary dictionary;
    Preferences preferences;
    for (const std::optional<Color>& color : {std::optional(kRed), std::optional<Color>()}) {
        setColor(dictionary, color, kKey);
        setColor(preferences, color, kKey);
        CHECK(dictionary.objectForKey(kKey) == Value(u"red"));
        CHECK(preferences.objectForKey(kKey) == Value(u"red"));
    }
}

}  // namespace QZCore
