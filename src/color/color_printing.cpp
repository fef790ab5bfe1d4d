#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "QZCore/color/named_colors.h"
#include "QZCore/foundation/preferences.h"
#include "color/stored_forms.h"

namespace QZCore {
namespace {

constexpr StringView kHexPreference = u"Color Hex RGBA";

/// A colour that is printed in one form whatever the preferences say.
struct FixedForm {
    Color color;
    StringView text;
};

constexpr std::array kFixedForms{
    FixedForm{Color::clearColor(), kClearString},
    FixedForm{Color::whiteColor(), kWhiteString},
    FixedForm{Color::colorWithCalibratedRed(1, 1, 1, 1), kWhiteString},
    FixedForm{Color::blackColor(), kBlackString},
    FixedForm{Color::colorWithCalibratedRed(0, 0, 0, 1), kBlackString},
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

using Steps = std::array<std::int32_t, 3>;

/// Appends two lower-case hex digits, or as many as the bits of `value` need.
void appendHex(String& text, std::int32_t value) {
    constexpr StringView kDigits = u"0123456789abcdef";
    const auto bits = static_cast<std::uint32_t>(value);
    int shift = 4;
    while (shift < 28 && bits >> (shift + 4) != 0) shift += 4;
    for (; shift >= 0; shift -= 4) text += kDigits[bits >> shift & 0xF];
}

void appendDecimal(String& text, std::int32_t value) { text += integerString(value); }

String opaqueString(const Steps& rgb) {
    String text(1, u'#');
    for (const std::int32_t value : rgb) appendHex(text, value);
    return text;
}

String translucentString(StringView start, const Steps& rgb, double alpha,
                         void (*append)(String& text, std::int32_t value)) {
    constexpr std::size_t kUsualLength = 26;
    String text;
    text.reserve(kUsualLength);
    text += start;
    for (const std::int32_t value : rgb) {
        append(text, value);
        text += u',';
    }
    text += fixedString(alpha, 6);
    text += u')';
    return text;
}

}  // namespace

String Color::stringForColor() const {
    if (const FixedForm* form = findFixedForm(*this)) return String(form->text);
    if (const auto name = sharedNamedColorsReversed().find(*this)) return String(*name);

    const Steps rgb{steps(components_.red), steps(components_.green), steps(components_.blue)};
    if (components_.alpha == 1.0) return opaqueString(rgb);
    return Preferences::shared().boolForKey(kHexPreference)
               ? translucentString(kHexStart, rgb, components_.alpha, appendHex)
               : translucentString(kDecimalStart, rgb, components_.alpha, appendDecimal);
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

String Color::clearColorAsString() { return String(kClearString); }
String Color::whiteColorAsString() { return String(kWhiteString); }
String Color::blackColorAsString() { return String(kBlackString); }

}  // namespace QZCore
