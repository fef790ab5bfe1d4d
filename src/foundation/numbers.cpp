#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "QZCore/foundation/text.h"

namespace QZCore {
namespace {

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

/// A walk over the parts of a number.
class Scanner {
public:
    explicit Scanner(StringView text) : text_(text) {
        while (at_ < text_.size() && isWhitespaceOrNewline(text_[at_])) ++at_;
    }

    [[nodiscard]] std::size_t position() const { return at_; }
    void moveTo(std::size_t position) { at_ = position; }

    bool take(StringView oneOf, std::string* into = nullptr) {
        if (at_ == text_.size() || oneOf.find(text_[at_]) == StringView::npos) return false;
        if (into != nullptr) into->push_back(static_cast<char>(text_[at_]));
        ++at_;
        return true;
    }

    std::size_t takeDigits(std::string& into) {
        const std::size_t start = at_;
        while (at_ < text_.size() && isDigit(text_[at_])) {
            into.push_back(static_cast<char>(text_[at_++]));
        }
        return at_ - start;
    }

private:
    StringView text_;
    std::size_t at_ = 0;
};

template <class Integer>
Integer leadingInteger(StringView text) {
    std::string digits;
    Scanner scanner(text);
    const bool negative = scanner.take(u"-");
    if (!negative) scanner.take(u"+");
    if (negative) digits.push_back('-');
    if (scanner.takeDigits(digits) == 0) return 0;
    Integer value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc()) return value;
    return negative ? std::numeric_limits<Integer>::min() : std::numeric_limits<Integer>::max();
}

/// The longest decimal number at the scanner, in the form that from_chars
/// reads; empty when there is none.
std::string takeDecimal(Scanner& scanner) {
    std::string number;
    if (!scanner.take(u"+")) scanner.take(u"-", &number);
    std::size_t digits = scanner.takeDigits(number);
    if (scanner.take(u".", &number)) digits += scanner.takeDigits(number);
    if (digits == 0) return {};
    const std::size_t mantissaEnd = scanner.position();
    std::string exponent = "e";
    if (scanner.take(u"eE")) {
        if (!scanner.take(u"+")) scanner.take(u"-", &exponent);
        if (scanner.takeDigits(exponent) > 0) return number + exponent;
        scanner.moveTo(mantissaEnd);
    }
    return number;
}

/// What a number stands for that from_chars calls out of range: nothing or an
/// infinity. The decimal exponent of the first digit that is not 0 decides.
double beyondRange(const std::string& number) {
    double magnitude = 0;
    const std::size_t exponentAt = number.find('e');
    std::int64_t exponent = 0;
    if (exponentAt != std::string::npos) {
        const bool down = number[exponentAt + 1] == '-';
        const char* first = number.data() + exponentAt + 1;
        const auto parsed = std::from_chars(first, number.data() + number.size(), exponent);
        constexpr std::int64_t kFar = 1'000'000'000'000;
        if (parsed.ec != std::errc()) exponent = down ? -kFar : kFar;
    }
    const std::string mantissa = number.substr(0, exponentAt);
    const std::size_t firstDigit = mantissa.find_first_of("123456789");
    std::size_t point = mantissa.find('.');
    if (point == std::string::npos) point = mantissa.size();
    const auto leading = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(firstDigit);
    if (firstDigit != std::string::npos && leading + exponent > 0) {
        magnitude = std::numeric_limits<double>::infinity();
    }
    return number.front() == '-' ? -magnitude : magnitude;
}

String asciiString(const char* first, const char* last) { return {first, last}; }

}  // namespace

std::int32_t intValue(StringView text) { return leadingInteger<std::int32_t>(text); }

std::int64_t integerValue(StringView text) { return leadingInteger<std::int64_t>(text); }

ReadNumber readDouble(StringView text) {
    Scanner scanner(text);
    const std::string number = takeDecimal(scanner);
    if (number.empty()) return {};
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) value = beyondRange(number);
    return {value, scanner.position()};
}

double doubleValue(StringView text) { return readDouble(text).value; }

float floatValue(StringView text) { return static_cast<float>(doubleValue(text)); }

bool boolValue(StringView text) {
    return integerValue(text) > 0 || equalsIgnoringAsciiCase(text, u"yes");
}

String integerString(std::int64_t value) {
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return asciiString(digits.data(), end);
}

String unsignedString(std::uint64_t value) {
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return asciiString(digits.data(), end);
}

String shortestString(double value) {
    std::array<char, 32> digits;
    const double magnitude = std::fabs(value);
    const bool isPlain = value == 0 || (magnitude >= 1e-6 && magnitude < 1e21);
    const auto format = isPlain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format).ptr;
    return asciiString(digits.data(), end);
}

String fixedString(double value, int decimals) {
    // The largest double has 309 digits before the point.
    constexpr int kMostDecimals = 1100;
    decimals = decimals < 0 ? 0 : (decimals > kMostDecimals ? kMostDecimals : decimals);
    std::array<char, 320 + kMostDecimals> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, decimals)
                         .ptr;
    return asciiString(digits.data(), end);
}

}  // namespace QZCore
