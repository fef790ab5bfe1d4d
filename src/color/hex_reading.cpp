#include <array>
#include <cstdint>

#include "QZCore/color/color.h"
#include "color/stored_forms.h"

namespace QZCore {
namespace {

/// What the digits of a hex string amount to.
struct HexDigits {
    std::uint32_t value = 0;
    std::size_t alphaAt = StringView::npos;  // after the third comma, if there is one
};

/// The values of the hex digits, the letters o as zeros among them; -1 for all
/// other units of ASCII.
constexpr auto kDigitValues = [] {
    std::array<std::int8_t, 128> values{};
    values.fill(-1);
    constexpr StringView kDigits = u"0123456789abcdef";
    constexpr StringView kCapitals = u"0123456789ABCDEF";
    for (std::int8_t value = 0; value < 16; ++value) {
        values[kDigits[static_cast<std::size_t>(value)]] = value;
        values[kCapitals[static_cast<std::size_t>(value)]] = value;
    }
    values[u'o'] = values[u'O'] = 0;
    return values;
}();

int digitValue(char16_t unit) { return unit < kDigitValues.size() ? kDigitValues[unit] : -1; }

/// Where the digits start: after "rgba(", white space and "#".
std::size_t startOfDigits(StringView string) {
    std::size_t at = string.starts_with(kHexStart) ? kHexStart.size() : 0;
    while (at < string.size() && (string[at] == u'#' || isWhitespaceOrNewline(string[at]))) ++at;
    return at;
}

/// Reads digits across commas, closing parentheses and white space. The value
/// keeps the digits that fit, which are the last ones.
HexDigits readHexDigits(StringView string) {
    HexDigits digits;
    int commas = 0;
    for (std::size_t at = startOfDigits(string); at < string.size(); ++at) {
        const char16_t unit = string[at];
        if (const int digit = digitValue(unit); digit >= 0) {
            digits.value = digits.value << 4 | static_cast<std::uint32_t>(digit);
        } else if (unit == u',') {
            if (++commas < 3) continue;
            digits.alphaAt = at + 1;
            break;
        } else if (unit != u')' && !isWhitespaceOrNewline(unit)) {
            break;
        }
    }
    return digits;
}

double readAlpha(StringView string, std::size_t at) {
    if (at == StringView::npos) return 1;
    const ReadNumber alpha = readDouble(string.substr(at));
    return alpha.length == 0 ? 1 : alpha.value;
}

}  // namespace

Color Color::colorForHexString(StringView string) {
    if (string == kWhiteString) return whiteColor();
    if (string == kBlackString) return blackColor();
    if (string == kClearString || string == kShortClearString) return clearColor();

    // Digits are looked for in the first 40 units only; the alpha may go on
    // beyond them.
    constexpr std::size_t kUnitsWithDigits = 40;
    const HexDigits digits = readHexDigits(string.substr(0, kUnitsWithDigits));
    return colorWithCalibrated255Red(digits.value >> 16 & 0xFF, digits.value >> 8 & 0xFF,
                                     digits.value & 0xFF, readAlpha(string, digits.alphaAt));
}

}  // namespace QZCore
