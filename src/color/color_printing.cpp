#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "QZCore/color/named_colors.h"
#include "QZCore/foundation/preferences.h"

namespace QZCore {
namespace {

// Stored in documents and settings.
constexpr StringView kClear = u"rgba(00,00,00,0.000000)";
constexpr StringView kWhite = u"#ffffff";
constexpr StringView kBlack = u"#000000";

/// A colour that is printed in one form whatever the preferences say.
struct FixedForm {
    Color color;
    StringView text;
};

constexpr std::array kFixedForms{
    FixedForm{Color::clearColor(), kClear},
    FixedForm{Color::whiteColor(), kWhite},
    FixedForm{Color::colorWithCalibratedRed(1, 1, 1, 1), kWhite},
    FixedForm{Color::blackColor(), kBlack},
    FixedForm{Color::colorWithCalibratedRed(0, 0, 0, 1), kBlack},
    FixedForm{Color::colorWithCalibratedWhite(0, 0.75), u"rgba(00,00,00,0.750000)"},
    FixedForm{Color::colorWithCalibratedRed(0, 0, 0, 0.75), u"rgba(00,00,00,0.750000)"},
    FixedForm{Color::colorWithCalibratedRed(0, 0, 0, 0.5), u"rgba(00,00,00,0.500000)"},
};

const FixedForm* findFixedForm(const Color& color) {
    for (const FixedForm& form : kFixedForms) {
        if (form.color == color) return &form;
    }
    return nullptr;
}

/// A component as an integer of 0 to 255, ties to even. Components outside 0
/// to 1 give integers outside, within 32 bits; not-a-number gives 0.
std::int32_t steps(double component) {
    using Limits = std::numeric_limits<std::int32_t>;
    const double rounded = std::nearbyint(component * 255);
    if (std::isnan(rounded)) return 0;
    if (rounded <= Limits::min()) return Limits::min();
    if (rounded >= Limits::max()) return Limits::max();
    return static_cast<std::int32_t>(rounded);
}

struct Steps {
    std::int32_t red;
    std::int32_t green;
    std::int32_t blue;
};

/// Appends two lower-case hex digits, or as many as the bits of `value` need.
void appendHex(String& text, std::int32_t value) {
    constexpr StringView kDigits = u"0123456789abcdef";
    const auto bits = static_cast<std::uint32_t>(value);
    int shift = 4;
    while (shift < 28 && bits >> (shift + 4) != 0) shift += 4;
    for (; shift >= 0; shift -= 4) text += kDigits[bits >> shift & 0xF];
}

String opaqueString(const Steps& steps) {
    String text = u"#";
    for (const std::int32_t value : {steps.red, steps.green, steps.blue}) appendHex(text, value);
    return text;
}

String translucentHexString(const Steps& steps, double alpha) {
    String text = u"rgba(";
    for (const std::int32_t value : {steps.red, steps.green, steps.blue}) {
        appendHex(text, value);
        text += u',';
    }
    return text.append(fixedString(alpha, 6)).append(u")");
}

String translucentDecimalString(const Steps& steps, double alpha) {
    String text = u"rgb(";
    for (const std::int32_t value : {steps.red, steps.green, steps.blue}) {
        text.append(integerString(value)).append(u",");
    }
    return text.append(fixedString(alpha, 6)).append(u")");
}

}  // namespace

String Color::stringForColor() const {
    if (const FixedForm* form = findFixedForm(*this)) return String(form->text);
    if (const auto name = sharedNamedColorsReversed().find(*this)) return String(*name);

    const Steps rgb{steps(components_.red), steps(components_.green), steps(components_.blue)};
    if (components_.alpha == 1.0) return opaqueString(rgb);
    if (Preferences::shared().boolForKey(u"Color Hex RGBA")) {
        return translucentHexString(rgb, components_.alpha);
    }
    return translucentDecimalString(rgb, components_.alpha);
}

std::optional<String> Color::stringForColor(const std::optional<Color>& color) {
    if (!color) return std::nullopt;
    return color->stringForColor();
}

std::vector<String> Color::convertColorsToColorStrings(const std::vector<Color>& colors) {
    std::vector<String> strings;
    strings.reserve(colors.size());
    for (const Color& color : colors) strings.push_back(color.stringForColor());
    return strings;
}

String Color::clearColorAsString() { return String(kClear); }
String Color::whiteColorAsString() { return String(kWhite); }
String Color::blackColorAsString() { return String(kBlack); }

}  // namespace QZCore
