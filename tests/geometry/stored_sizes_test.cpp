#include "QZCore/geometry/stored_sizes.h"

#include <bit>
#include <cmath>
#include <random>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/preferences.h"
#include "support/comma_locale.h"
#include "support/printing.h"

namespace QZCore {

TEST_CASE("a size is read from its text; the default stands for an absent key only") {
    constexpr Size kDefault{7, 8};
    struct Row {
        const char* why;
        Value stored;
        Size size;
    };
    const Row rows[] = {
        {"as written", u"{120, 80}", {120, 80}},
        {"absent", Value(), kDefault},
        {"without a blank", u"{120,80}", {120, 80}},
        {"with blanks and line ends", u" \n{ 120\t,\u00A080 } ", {120, 80}},
        {"signs, fractions, exponents", u"{-.5, +2.5e3}", {-0.5, 2500}},
        {"no braces", u"120, 80", {}},
        {"an open brace", u"{120, 80", {}},
        {"one number", u"{120}", {}},
        {"three numbers", u"{120, 80, 40}", {}},
        {"another separator", u"{120; 80}", {}},
        {"a decimal comma", u"{1,5, 2,5}", {}},
        {"no numbers", u"{a, b}", {}},
        {"not a number", u"{nan, 1}", {}},
        {"more behind it", u"{120, 80} x", {}},
        {"empty", u"", {}},
        {"a number", 120, {}},
        {"an array", Array{120, 80}, {}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        Dictionary dictionary;
        dictionary.setObject(row.stored, u"k");
        CHECK(sizeForKey(dictionary, u"k", kDefault) == row.size);
        CHECK(sizeForKey(Preferences(dictionary), u"k", kDefault) == row.size);
    }
    CHECK(sizeForKey(Dictionary(), u"k") == Size());
    CHECK(sizeForKey(Preferences(), u"k") == Size());
}

TEST_CASE("sizes are stored as these texts") {
    const testing::CommaLocale locale;
    struct Row {
        Size size;
        StringView text;
    };
    const Row rows[] = {
        {{120, 80}, u"{120, 80}"},
        {{-0.0, 0.75}, u"{-0, 0.75}"},
        {{100000, 3.4028234663852886e+38}, u"{100000, 3.4028234663852886e+38}"},
    };
    for (const Row& row : rows) {
        Dictionary dictionary;
        Preferences preferences;
        setSize(dictionary, row.size, u"k");
        setSize(preferences, row.size, u"k");
        CHECK(dictionary.objectForKey(u"k") == Value(row.text));
        CHECK(preferences.objectForKey(u"k") == Value(row.text));
        CHECK(sizeForKey(dictionary, u"k") == row.size);
    }
}

TEST_CASE("every finite size reads back") {
    std::mt19937_64 random(1);
    for (int round = 0; round < 20'000; ++round) {
        const Size size{std::bit_cast<double>(random()), std::bit_cast<double>(random())};
        if (!std::isfinite(size.width) || !std::isfinite(size.height)) continue;
        Dictionary dictionary;
        setSize(dictionary, size, u"k");
        REQUIRE(sizeForKey(dictionary, u"k") == size);
    }
}

}  // namespace QZCore
