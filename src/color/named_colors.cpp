#include "QZCore/color/named_colors.h"

#include <algorithm>
#include <array>

#include "color/system_colors.h"

namespace QZCore {
namespace {

constexpr Color white(double level) { return Color::colorWithCalibratedWhite(level, 1); }

constexpr Color rgb(double red, double green, double blue) {
    return Color::colorWithCalibratedRed(red, green, blue, 1);
}

// Stored in documents and settings: a name keeps its colour.
constexpr std::array kByName{
    NamedColor{u"black", Color::blackColor()},
    NamedColor{u"blue", rgb(0, 0, 1)},
    NamedColor{u"brown", rgb(0.6, 0.4, 0.2)},
    NamedColor{u"clear", Color::clearColor()},
    NamedColor{u"cyan", rgb(0, 1, 1)},
    NamedColor{u"darkGray", white(1.0 / 3.0)},
    NamedColor{u"gray", white(0.5)},
    NamedColor{u"green", rgb(0, 1, 0)},
    NamedColor{u"lightGray", white(2.0 / 3.0)},
    NamedColor{u"link", kLinkColor},
    NamedColor{u"magenta", rgb(1, 0, 1)},
    NamedColor{u"orange", rgb(1, 0.5, 0)},
    NamedColor{u"purple", rgb(0.5, 0, 0.5)},
    NamedColor{u"red", rgb(1, 0, 0)},
    NamedColor{u"systemBlue", kSystemBlue},
    NamedColor{u"systemBrown", kSystemBrown},
    NamedColor{u"systemGray", kSystemGray},
    NamedColor{u"systemGreen", kSystemGreen},
    NamedColor{u"systemOrange", kSystemOrange},
    NamedColor{u"systemPink", kSystemPink},
    NamedColor{u"systemPurple", kSystemPurple},
    NamedColor{u"systemRed", kSystemRed},
    NamedColor{u"systemTeal", kSystemTeal},
    NamedColor{u"systemYellow", kSystemYellow},
    NamedColor{u"white", Color::whiteColor()},
    NamedColor{u"yellow", rgb(1, 1, 0)},
};
static_assert(std::ranges::is_sorted(kByName, {}, &NamedColor::name),
              "NamedColors::find searches by halves");

/// An order of the colours in which equal ones are neighbours.
constexpr bool isBefore(const Color& a, const Color& b) {
    if (a.model() != b.model()) return a.model() < b.model();
    if (a.redComponent() != b.redComponent()) return a.redComponent() < b.redComponent();
    if (a.greenComponent() != b.greenComponent()) return a.greenComponent() < b.greenComponent();
    if (a.blueComponent() != b.blueComponent()) return a.blueComponent() < b.blueComponent();
    return a.alphaComponent() < b.alphaComponent();
}

constexpr auto kByColor = [] {
    auto rows = kByName;
    std::ranges::sort(rows, isBefore, &NamedColor::color);
    return rows;
}();
static_assert(std::ranges::adjacent_find(kByColor, {}, &NamedColor::color) == kByColor.end(),
              "each colour has one name");

}  // namespace

std::optional<Color> NamedColors::find(StringView name) const {
    const auto row = std::ranges::lower_bound(kByName, name, {}, &NamedColor::name);
    if (row == kByName.end() || row->name != name) return std::nullopt;
    return row->color;
}

std::size_t NamedColors::count() const { return kByName.size(); }
const NamedColor* NamedColors::begin() const { return kByName.data(); }
const NamedColor* NamedColors::end() const { return kByName.data() + kByName.size(); }

std::optional<StringView> NamedColorsReversed::find(const Color& color) const {
    const auto row = std::ranges::lower_bound(kByColor, color, isBefore, &NamedColor::color);
    if (row == kByColor.end() || row->color != color) return std::nullopt;
    return row->name;
}

std::size_t NamedColorsReversed::count() const { return kByColor.size(); }

const NamedColors& Color::sharedNamedColors() {
    static constexpr NamedColors kTable;
    return kTable;
}

const NamedColorsReversed& Color::sharedNamedColorsReversed() {
    static constexpr NamedColorsReversed kTable;
    return kTable;
}

}  // namespace QZCore
