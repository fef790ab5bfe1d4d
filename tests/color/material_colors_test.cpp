#include <set>

#include "QZCore/color.h"
#include "color/material_table.h"
#include "support/color_printing.h"
#include "support/log_capture.h"

namespace QZCore {

TEST_CASE("the palette has ten plain shades of 19 colours and four accents of 16") {
    const testing::LogCapture log;
    CHECK(Color::sharedMaterialColors().count() == 14);
    for (const MaterialShade& shade : Color::sharedMaterialColors()) {
        CAPTURE(shade.key);
        CHECK(shade.colors.size() == (shade.key.starts_with(u'a') ? 16 : 19));
        const auto palette = Color::colorPaletteWithMaterialDarkness(shade.key);
        REQUIRE(palette);
        CHECK(palette->data() == shade.colors.data());
        // The stray character stands behind the last colour of each shade only.
        const MaterialRow& row =
            kMaterialRows[static_cast<std::size_t>(&shade - Color::sharedMaterialColors().begin())];
        for (std::size_t i = 0; i < shade.colors.size(); ++i) {
            const bool isLast = i + 1 == shade.colors.size();
            const StringView digits = row.colors[i].substr(0, 7);
            REQUIRE(row.colors[i].substr(7) == (isLast ? u"@" : u""));
            REQUIRE(Color::colorForHexString(digits) == shade.colors[i]);
        }
    }
    CHECK(Color::colorPaletteWithMaterialDarkness(u"50")->front().stringForColor() == u"#ffebee");
    CHECK(Color::colorPaletteWithMaterialDarkness(u"500")->back().stringForColor() == u"#607d8b");
    CHECK(Color::colorPaletteWithMaterialDarkness(u"a100")->back().stringForColor() == u"#ff9e80");
    for (const StringView key : {u"A400", u"", u"55", u"a400 "})
        CHECK_FALSE(Color::colorPaletteWithMaterialDarkness(key));
    CHECK(log.lines().empty());
}

TEST_CASE("random colours come from the shades that were asked for, each as often") {
    std::set<String> drawn;
    int absent = 0;
    for (int i = 0; i < 3'000; ++i) {
        const auto color = Color::randomMaterialColorAmongDarknesses(
            std::vector<String>{u"a700", u"none", u"a400"});
        if (color) drawn.insert(color->stringForColor());
        if (!color) ++absent;
    }
    // Failures of chance: once in 10^13.
    CHECK(drawn.size() == 32);
    CHECK(absent > 800);
    CHECK(absent < 1'200);
    CHECK_FALSE(Color::randomMaterialColorAmongDarknesses(std::vector<String>{}));
    CHECK_FALSE(Color::randomMaterialColorAmongDarknesses(std::vector<String>{u"A700"}));
    CHECK(Color::randomMaterialColorAmongDarknesses(std::nullopt));
    CHECK(Color::randomMaterialColor().alphaComponent() == 1);
}

}  // namespace QZCore
