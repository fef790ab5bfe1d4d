#include <algorithm>
#include <array>
#include <cmath>

#include "foundation/hexadecimal.h"
#include "richtext/css_named_colors.h"
#include "richtext/css_values.h"

namespace QZCore {
namespace {

constexpr double kMost = 255;

/// Black follows the appearance of the application, so it is the fixed colour.
Color colorOf(double red, double green, double blue, double alpha) {
    const auto clamped = [](double byte) { return std::clamp(std::round(byte), 0.0, kMost); };
    red = clamped(red);
    green = clamped(green);
    blue = clamped(blue);
    alpha = std::clamp(alpha, 0.0, 1.0);
    if (red + green + blue == 0 && alpha == 1) return Color::blackColor();
    if (red + green + blue == 0 && alpha == 0) return Color::clearColor();
    return Color::colorWithCalibrated255Red(red, green, blue, alpha);
}

std::optional<Color> namedColor(StringView name) {
    const String lower = inAsciiLowerCase(name);
    if (lower == u"transparent") return Color::clearColor();
    const auto* row = std::ranges::lower_bound(kCssNamedColors, lower, {}, &CssNamedColor::name);
    if (row == std::end(kCssNamedColors) || row->name != lower) return std::nullopt;
    return colorOf(row->rgb >> 16, row->rgb >> 8 & 0xFF, row->rgb & 0xFF, 1);
}

/// The colour of 3, 4, 6 or 8 digits; of the short forms each digit counts twice.
std::optional<Color> hexColor(StringView digits) {
    const bool isShort = digits.size() == 3 || digits.size() == 4;
    if (!isShort && digits.size() != 6 && digits.size() != 8) return std::nullopt;
    std::array<double, 4> parts{0, 0, 0, kMost};
    const std::size_t width = isShort ? 1 : 2;
    for (std::size_t i = 0; i < digits.size() / width; ++i) {
        const char16_t pair[] = {digits[i * width], digits[i * width + width - 1]};
        const auto byte = hexByte(StringView(pair, 2));
        if (!byte) return std::nullopt;
        parts[i] = *byte;
    }
    return colorOf(parts[0], parts[1], parts[2], parts[3] / kMost);
}

/// The arguments of a function, which blanks, commas or a slash separate.
std::vector<StringView> argumentsOf(StringView text) {
    std::vector<StringView> arguments;
    for (const StringView byComma : cssParts(text, u',')) {
        for (const StringView part : cssParts(byComma, u'/')) arguments.push_back(part);
    }
    return arguments;
}

/// A number, of which `whole` are 100 %.
std::optional<double> numberOf(StringView text, double whole) {
    const auto length = cssLengthOf(text);
    if (!length) return std::nullopt;
    if (length->unit == CssUnit::Percent) return length->number / 100 * whole;
    return length->unit == CssUnit::Number ? std::optional(length->number) : std::nullopt;
}

/// Degrees, with or without their unit.
std::optional<double> turnOf(StringView text) {
    constexpr double kFullTurn = 360;
    if (text.ends_with(u"deg")) text.remove_suffix(3);
    const auto degrees = numberOf(text, kFullTurn);
    if (!degrees) return std::nullopt;
    return *degrees / kFullTurn - std::floor(*degrees / kFullTurn);
}

std::optional<Color> functionColor(StringView name, StringView text) {
    const std::vector<StringView> arguments = argumentsOf(text);
    if (arguments.size() != 3 && arguments.size() != 4) return std::nullopt;
    const bool isHue = name.starts_with(u"hsl");
    const auto first = isHue ? turnOf(arguments[0]) : numberOf(arguments[0], kMost);
    const auto second = numberOf(arguments[1], isHue ? 1 : kMost);
    const auto third = numberOf(arguments[2], isHue ? 1 : kMost);
    const auto alpha = arguments.size() == 4 ? numberOf(arguments[3], 1) : 1;
    if (!first || !second || !third || !alpha) return std::nullopt;
    if (!isHue) return colorOf(*first, *second, *third, *alpha);
    const Color color = Color::colorWithHue(*first, std::clamp(*second, 0.0, 1.0),
                                            std::clamp(*third, 0.0, 1.0), *alpha);
    return colorOf(color.redComponent() * kMost, color.greenComponent() * kMost,
                   color.blueComponent() * kMost, *alpha);
}

}  // namespace

std::optional<Color> cssColorOf(StringView text) {
    if (text.starts_with(u'#')) return hexColor(text.substr(1));
    const std::size_t open = text.find(u'(');
    if (open == StringView::npos || !text.ends_with(u')')) return namedColor(text);
    const String name = inAsciiLowerCase(text.substr(0, open));
    for (const StringView known : {u"rgb", u"rgba", u"hsl", u"hsla"}) {
        if (name != known) continue;
        return functionColor(name, text.substr(open + 1, text.size() - open - 2));
    }
    return std::nullopt;
}

}  // namespace QZCore
