// Laws of every catalogue: the made-up one, and the machine's own whatever is
// installed there.
#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <set>
#include <thread>

#include "QZCore/platform/fonts.h"
#include "support/log_capture.h"
#include "support/printing.h"

namespace QZCore {
namespace {

std::vector<std::shared_ptr<const FontCatalog>> catalogs() {
    return {makeInMemoryFontCatalog(), sharedFontCatalog()};
}

std::vector<Font> allFonts(const FontCatalog& catalog, double size) {
    std::vector<Font> fonts;
    for (const String& family : catalog.availableFamilies()) {
        for (const FontMember& member : catalog.membersOfFamily(family)) {
            fonts.push_back({family, member.uniqueName, size, member.traits, member.weight});
        }
    }
    return fonts;
}

/// Sixty fonts at most, spread over the list: a machine may have thousands.
std::vector<Font> someFonts(const FontCatalog& catalog, double size) {
    const std::vector<Font> all = allFonts(catalog, size);
    const std::size_t step = all.size() / 60 + 1;
    std::vector<Font> some;
    for (std::size_t i = 0; i < all.size(); i += step) some.push_back(all[i]);
    return some;
}

/// How much worse than perfect `candidate` is as a substitute for `font`.
using Mismatch = std::pair<int, int>;
Mismatch mismatch(const Font& candidate, const Font& font) {
    return {std::popcount(candidate.traits ^ font.traits),
            std::abs(candidate.weight - font.weight)};
}

/// The smallest mismatch of any of `fonts` that shows `character`.
std::optional<Mismatch> bestMismatch(const FontCatalog& catalog, const std::vector<Font>& fonts,
                                     const Font& font, char32_t character) {
    std::optional<Mismatch> best;
    for (const Font& other : fonts) {
        const Mismatch candidate = mismatch(other, font);
        if (best && *best <= candidate) continue;
        if (catalog.showsCharacter(other, character)) best = candidate;
    }
    return best;
}

constexpr char32_t kSamples[] = {u'a',      u'\u00E9', u'\u0416', u'\u05D0', u'\u2260',
                                 u'\u2764', 0x3042,    0x4E2D,    0xE000,    0x1D54F,
                                 0x1F600,   0x1F9D1,   0x20000,   0x10FFFF};

}  // namespace

TEST_CASE("fonts hash alike when they are equal and are described by face and size") {
    const Font font{u"Sans", u"Sans-Bold", 0.0, kFontBold, 9};
    Font other = font;
    other.pointSize = -0.0;
    CHECK(font == other);
    CHECK(hashOf(font) == hashOf(other));
    other.pointSize = 13.5;
    CHECK(hashOf(font) != hashOf(other));
    CHECK(descriptionOf(other) == u"Sans-Bold 13.5");
}

TEST_CASE("families are sorted, each with faces, and others have none") {
    for (const auto& catalog : catalogs()) {
        const std::vector<String> families = catalog->availableFamilies();
        CHECK(std::ranges::is_sorted(families));
        CHECK(std::ranges::adjacent_find(families) == families.end());
        for (const String& family : families) CHECK_FALSE(catalog->membersOfFamily(family).empty());
        for (const StringView missing : {u"", u"No Such Family", u"sans-serif,", u"\xD800"}) {
            CHECK(catalog->membersOfFamily(missing).empty());
            CHECK_FALSE(catalog->fontNamed(missing, 11).has_value());
        }
        const Font user = catalog->userFont(11);
        const auto named = catalog->fontNamed(user.faceName, 11);
        CHECK(named.has_value() != families.empty());
        CHECK(named.value_or(user) == user);
    }
}

TEST_CASE("every listed face has a name of its own by which it is found") {
    for (const auto& catalog : catalogs()) {
        std::set<String> names;
        for (const Font& font : allFonts(*catalog, 11)) {
            CAPTURE(font.faceName);
            CHECK(names.insert(font.faceName).second);
            CHECK(catalog->fontNamed(font.faceName, 11) == font);
            CHECK((font.traits & ~(kFontItalic | kFontBold)) == 0);
            CHECK((font.weight >= 0 && font.weight <= 15));
            for (const FontMember& member : catalog->membersOfFamily(font.familyName)) {
                CHECK_FALSE(member.faceName.empty());
                CHECK(catalog->fontNamed(member.fullName, 11).has_value());
            }
        }
    }
}

TEST_CASE("widths add up, grow with the text and in proportion to the size") {
    const StringView text = u"1. 99. (20) X";
    for (const auto& catalog : catalogs()) {
        for (Font font : someFonts(*catalog, 16)) {
            CAPTURE(font.faceName);
            CHECK(catalog->widthOfText(u"", font) == 0);
            for (std::size_t i = 0; i < text.size(); ++i) {
                const double before = catalog->widthOfText(text.substr(0, i), font);
                const double after = catalog->widthOfText(text.substr(i), font);
                const double whole = catalog->widthOfText(text, font);
                CHECK(whole > before);
                CHECK(std::abs(whole - before - after) < font.pointSize / 2);  // kerning
            }
            const double width = catalog->widthOfText(text, font);
            font.pointSize *= 4;
            CHECK(catalog->widthOfText(text, font) == 4 * width);
        }
    }
}

TEST_CASE("a size that is not positive and finite counts as the default size") {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const auto& catalog : catalogs()) {
        Font font = catalog->userFont(kFontDefaultSize);
        const double width = catalog->widthOfText(u"size", font);
        for (const double size : {0.0, -3.0, kInfinity, -kInfinity, std::nan("")}) {
            CAPTURE(size);
            CHECK(catalog->userFont(size) == font);
            const auto named = catalog->fontNamed(font.faceName, size);
            CHECK(named.value_or(font) == font);
            Font odd = font;
            odd.pointSize = size;
            CHECK(catalog->widthOfText(u"size", odd) == width);
        }
        font.pointSize = std::numeric_limits<double>::max();
        CHECK(std::isfinite(catalog->widthOfText(u"size", font)));
        font.pointSize = std::numeric_limits<double>::denorm_min();
        CHECK(catalog->widthOfText(u"size", font) >= 0);
    }
}

TEST_CASE("hostile lines are measured without a word") {
    constexpr std::size_t kLong = 1'000'000;
    String scripts;
    while (scripts.size() < kLong / 10) scripts += u"a\u0416\u05D0\u0628\u4E2D\U0001F600";
    const String lines[] = {
        String(kLong, u'a'),
        String(kLong, u' '),
        String(kLong, u'\0'),
        String(kLong / 10, char16_t(0xD800)),
        String(kLong / 10, char16_t(0xDC00)),
        String(kLong / 10, u'\u0301'),
        String(kLong / 10, u'\u2067'),
        String(kLong / 10, u'\u05D0'),
        scripts,
        String(u"\uFE0F\u200D\0\n\u2028\uFFFC\uFFFF\uFDD0", 8) + char16_t(0xD83D),
    };
    const testing::LogCapture log;
    for (const auto& catalog : catalogs()) {
        const Font font = catalog->userFont(10);
        for (const String& line : lines) {
            CAPTURE(line.substr(0, 4));
            const double width = catalog->widthOfText(line, font);
            CHECK(width >= 0);
            CHECK(width <= 40.0 * static_cast<double>(line.size()));
        }
        const double one = catalog->widthOfText(u"a", font);
        CHECK(catalog->widthOfText(lines[0], font) == doctest::Approx(one * kLong));
        CHECK(catalog->widthOfText(lines[2], font) == 0);
    }
    CHECK(log.lines().empty());
}

TEST_CASE("a substitute shows the character, and no nearer font does") {
    for (const auto& catalog : catalogs()) {
        const std::vector<Font> fonts = allFonts(*catalog, 10);
        for (const Font& font : someFonts(*catalog, 10)) {
            CAPTURE(font.faceName);
            for (const char32_t character : kSamples) {
                CAPTURE(static_cast<std::uint32_t>(character));
                const auto substitute = catalog->substituteFor(font, character);
                const auto best = bestMismatch(*catalog, fonts, font, character);
                REQUIRE(substitute.has_value() == best.has_value());
                if (!substitute) continue;
                CHECK(catalog->showsCharacter(*substitute, character));
                CHECK(std::ranges::count(fonts, *substitute) == 1);
                CHECK((substitute == font || mismatch(*substitute, font) == *best));
                CHECK((substitute == font) == catalog->showsCharacter(font, character));
            }
        }
    }
}

TEST_CASE("a font shows ASCII when it shows every ASCII character") {
    for (const auto& catalog : catalogs()) {
        for (const Font& font : allFonts(*catalog, 10)) {
            CAPTURE(font.faceName);
            CHECK(catalog->showsAscii(font) == catalog->FontCatalog::showsAscii(font));
        }
    }
}

constexpr char32_t kShownByAll[] = {0x00,   0x09,   0x0A,   0x7F,   0xAD,   0x200D,
                                    0x2028, 0x202E, 0xFE0F, 0xFEFF, 0xFFFC, 0xE0061};
constexpr char32_t kShownByNone[] = {0xD800, 0xDFFF, 0x110041, 0x1000041, 0xFFFFFFFF};

TEST_CASE("what needs no glyph is shown by every font, and what is no character by none") {
    for (const auto& catalog : catalogs()) {
        std::vector<Font> fonts = allFonts(*catalog, 10);
        fonts.push_back({u"Missing", u"Missing-Bold", 10, kFontBold, 9});
        for (const Font& font : fonts) {
            for (const char32_t shown : kShownByAll) {
                CHECK(catalog->showsCharacter(font, shown));
                CHECK(catalog->substituteFor(font, shown) == font);
            }
            for (const char32_t none : kShownByNone) {
                CHECK_FALSE(catalog->showsCharacter(font, none));
                CHECK_FALSE(catalog->substituteFor(font, none).has_value());
            }
        }
    }
}

TEST_CASE("a font that is not installed stands for the nearest of its family or the user's") {
    for (const auto& catalog : catalogs()) {
        for (const Font& font : someFonts(*catalog, 10)) {
            const Font renamed{font.familyName, u"No Such Face", 10, font.traits, font.weight};
            const bool isAlone =
                std::ranges::count_if(
                    catalog->membersOfFamily(font.familyName), [&](const FontMember& member) {
                        return member.traits == font.traits && member.weight == font.weight;
                    }) == 1;
            if (!isAlone) continue;
            CAPTURE(font.faceName);
            CHECK(catalog->widthOfText(u"Wi", renamed) == catalog->widthOfText(u"Wi", font));
        }
        const Font user = catalog->userFont(10);
        const Font missing{u"No Such Family", u"No Such Face", 10, user.traits, user.weight};
        CHECK(catalog->widthOfText(u"Wi", missing) == catalog->widthOfText(u"Wi", user));
    }
}

TEST_CASE("widths of fonts that are often installed are the sums of their advances") {
    struct Row {
        StringView family, face, text;
        double units;  // of 2048 to the em
    };
    const Row rows[] = {
        {u"DejaVu Sans", u"DejaVuSans", u"Hello", 1540 + 1260 + 569 + 569 + 1253},
        {u"DejaVu Sans", u"DejaVuSans", u"AV", 1401 + 1401 - 131},  // a kerned pair
        {u"DejaVu Sans", u"DejaVuSans-Bold", u"l", 702},
        {u"DejaVu Sans", u"DejaVuSansCondensed-Oblique", u"l", 512},
        {u"Liberation Sans", u"LiberationSans", u"Hello", 4667},
    };
    const auto catalog = sharedFontCatalog();
    const std::vector<String> families = catalog->availableFamilies();
    int measured = 0;
    for (const Row& row : rows) {
        CAPTURE(row.face);
        if (!std::ranges::binary_search(families, row.family)) continue;
        const auto font = catalog->fontNamed(row.face, 2048);
        REQUIRE(font.has_value());
        CHECK(catalog->widthOfText(row.text, *font) == row.units);
        ++measured;
    }
    if (measured == 0) MESSAGE("none of the fonts with known advances is installed");
}

TEST_CASE("several threads may ask the same catalogue at once") {
    const auto catalog = sharedFontCatalog();
    const auto answers = [&] {
        double sum = 0;
        for (const Font& font : someFonts(*catalog, 10)) {
            for (const char32_t character : kSamples) {
                const auto substitute = catalog->substituteFor(font, character);
                if (substitute) sum += catalog->widthOfText(u"9. a\U0001F600", *substitute);
            }
        }
        return sum;
    };
    double sums[4] = {};
    std::vector<std::thread> threads;
    for (double& sum : sums) threads.emplace_back([&] { sum = answers(); });
    for (std::thread& thread : threads) thread.join();
    for (const double sum : sums) CHECK(sum == answers());
}

}  // namespace QZCore
