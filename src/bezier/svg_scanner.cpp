#include "bezier/svg_scanner.h"

#include <charconv>
#include <cmath>

namespace QZCore {
namespace {

bool isSpace(char16_t unit) {
    return unit == u' ' || unit == u'\n' || unit == u'\t' || unit == u'\r' || unit == u'\f';
}

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

bool mayBeOfNumber(char16_t unit) {
    return isDigit(unit) || unit == u'.' || unit == u'-' || unit == u'+' || unit == u'e' ||
           unit == u'E';
}

/// The number at the start of the text; a length of 0 when it is too long for this, out
/// of range, or none.
ReadNumber readShortNumber(StringView text) {
    char digits[32];
    const std::size_t sign = text.front() == u'+' ? 1 : 0;
    std::size_t count = 0;
    while (count < sizeof digits && sign + count < text.size() &&
           mayBeOfNumber(text[sign + count])) {
        digits[count] = static_cast<char>(text[sign + count]);
        ++count;
    }
    if (count == 0 || (sign == 1 && digits[0] == '-')) return {};
    double value = 0;
    const auto [end, error] = std::from_chars(digits, digits + count, value);
    // As many units of an exponent may be in sight without making it one.
    constexpr std::ptrdiff_t kCutExponent = 2;
    const bool isCut = count == sizeof digits && digits + count - end <= kCutExponent;
    if (error != std::errc() || isCut) return {};
    return {value, sign + static_cast<std::size_t>(end - digits)};
}

}  // namespace

void SvgScanner::skipSpace() {
    while (at_ < text_.size() && isSpace(text_[at_])) ++at_;
}

bool SvgScanner::skipComma() {
    skipSpace();
    if (next() != u',') return false;
    ++at_;
    skipSpace();
    return true;
}

std::optional<double> SvgScanner::takeNumber() {
    if (!mayBeOfNumber(next())) return std::nullopt;
    const StringView rest = text_.substr(at_);
    ReadNumber number = readShortNumber(rest);
    if (number.length == 0) number = readDouble(rest);
    if (number.length == 0 || !std::isfinite(number.value)) return std::nullopt;
    at_ += number.length;
    return number.value;
}

std::optional<double> SvgScanner::takeFlag() {
    const char16_t flag = next();
    if (flag != u'0' && flag != u'1') return std::nullopt;
    ++at_;
    return flag - u'0';
}

}  // namespace QZCore
