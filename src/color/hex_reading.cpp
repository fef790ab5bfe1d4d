#include <array>
#include <cstdint>

#include "QZCore/color/color.h"

namespace QZCore {
namespace {

/// What the digits of a hex string amount to.
struct HexDigits {
    std::uint32_t value = 0;
    std::size_t alphaAt = StringView::npos;  // after the third comma, if there is one
};

/// The value of a hex digit, the letters o as zeros among them, or -1.
constexpr int digitValue(char16_t unit) {
    if (unit >= u'0' && unit <= u'9') return unit - u'0';
    if (unit >= u'a' && unit <= u'f') return unit - u'a' + 10;
    if (unit >= u'A' && unit <= u'F') return unit - u'A' + 10;
    return unit == u'o' || unit == u'O' ? 0 : -1;
}

/// Where the digits start: after "rgba(", white space and "#".
std::size_t startOfDigits(StringView string) {
    constexpr StringView kStart = u"rgba(";
    std::size_t at = string.starts_with(kStart) ? kStart.size() : 0;
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
    if (string == u"#ffffff") return whiteColor();
    if (string == u"#000000") return blackColor();
    if (string == u"rgba(00,00,00,0.000000)" || string == u"rgba(0,0,0,0)") return clearColor();

    // Digits are looked for in the first 40 units only; the alpha may go on
    // beyond them.
    constexpr std::size_t kUnitsWithDigits = 40;
    const HexDigits digits = readHexDigits(string.substr(0, kUnitsWithDigits));
    return colorWithCalibrated255Red(digits.value >> 16 & 0xFF, digits.value >> 8 & 0xFF,
                                     digits.value & 0xFF, readAlpha(string, digits.alphaAt));
}

}  // namespace QZCore
