#include "QZCore/codecs/formatting.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "codecs/format_directive.h"

namespace QZCore {
namespace {

constexpr std::int64_t kMostDigits = 1000;

/// A directive with its numbers taken from the arguments.
struct Wanted {
    const FormatDirective& directive;
    std::size_t width = 0;
    std::optional<int> precision = {};
};

String upperCase(String text) {
    for (char16_t& unit : text) unit = unit >= u'a' && unit <= u'z' ? unit - 32 : unit;
    return text;
}

bool isOneOf(char16_t conversion, StringView conversions) {
    return conversions.find(conversion) != StringView::npos;
}

String digitsOf(std::uint64_t number, int base, const std::optional<int>& precision) {
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, base).ptr;
    String text(digits.data(), end);
    if (precision == 0 && number == 0) text.clear();
    const auto least = static_cast<std::size_t>(precision.value_or(1));
    if (text.size() < least) text.insert(0, least - text.size(), u'0');
    return text;
}

/// `magnitude` as C prints it.
String realDigits(double magnitude, const Wanted& wanted) {
    const auto lower = static_cast<char16_t>(wanted.directive.conversion | 0x20);
    const auto format = lower == u'f'   ? std::chars_format::fixed
                        : lower == u'e' ? std::chars_format::scientific
                        : lower == u'a' ? std::chars_format::hex
                                        : std::chars_format::general;
    std::array<char, 320 + kMostDigits> digits;
    char* const end = digits.data() + digits.size();
    const bool isExact = lower == u'a' && !wanted.precision;
    const auto last =
        isExact ? std::to_chars(digits.data(), end, magnitude, format).ptr
                : std::to_chars(digits.data(), end, magnitude, format, wanted.precision.value_or(6))
                      .ptr;
    return {digits.data(), last};
}

/// A number with what comes before zeros that fill it up: its sign, its base.
struct Number {
    String sign;
    String digits;
    bool mayHaveZeros = true;
};

String signFor(bool isNegative, const FormatDirective& directive) {
    if (isNegative) return u"-";
    if (directive.showsPlus) return u"+";
    return directive.showsSpace ? u" " : u"";
}

Number realNumber(double value, const Wanted& wanted) {
    String sign = signFor(std::signbit(value), wanted.directive);
    if (std::isfinite(value) && isOneOf(wanted.directive.conversion, u"aA")) sign += u"0x";
    return {sign, realDigits(std::fabs(value), wanted), std::isfinite(value)};
}

Number signedNumber(std::int64_t value, const Wanted& wanted) {
    const auto bits = static_cast<std::uint64_t>(value);
    const std::uint64_t magnitude = value < 0 ? 0 - bits : bits;
    return {signFor(value < 0, wanted.directive), digitsOf(magnitude, 10, wanted.precision),
            !wanted.precision};
}

Number unsignedNumber(std::uint64_t value, const Wanted& wanted) {
    const char16_t conversion = wanted.directive.conversion;
    const bool isHex = isOneOf(conversion, u"xXp");
    const int base = isHex ? 16 : isOneOf(conversion, u"oO") ? 8 : 10;
    String prefix;
    if (conversion == u'p' || (wanted.directive.isAlternate && value != 0)) {
        prefix = isHex ? u"0x" : base == 8 ? u"0" : u"";
    }
    return {prefix, digitsOf(value, base, wanted.precision), !wanted.precision};
}

String character(const Value& value) {
    if (value.kind() == ValueKind::Text) {
        const String text = value.stringValue();
        return text.empty() ? text : text.substr(0, codePointAt(text, 0).length);
    }
    String text;
    appendCodePoint(text, value.unsignedIntValue());
    return text;
}

String padded(const Number& number, const Wanted& wanted) {
    String text = number.sign + number.digits;
    if (text.size() >= wanted.width) return text;
    const std::size_t missing = wanted.width - text.size();
    if (wanted.directive.isLeft) return text.append(missing, u' ');
    if (wanted.directive.hasZeros && number.mayHaveZeros) {
        return text.insert(number.sign.size(), missing, u'0');
    }
    return text.insert(0, missing, u' ');
}

Number converted(const Value& value, const Wanted& wanted) {
    const char16_t conversion = wanted.directive.conversion;
    if (isOneOf(conversion, u"dDi")) return signedNumber(value.integerValue(), wanted);
    if (isOneOf(conversion, u"uUxXoOp")) {
        return unsignedNumber(value.unsignedIntegerValue(), wanted);
    }
    if (isOneOf(conversion, u"fFeEgGaA")) return realNumber(value.doubleValue(), wanted);
    if (isOneOf(conversion, u"cC")) return {{}, character(value), false};
    if (conversion == u'@') {
        return {{}, value.isAbsent() ? String(u"(null)") : value.description(), false};
    }
    const String text = value.stringValue();
    return {
        {}, text.substr(0, static_cast<std::size_t>(wanted.precision.value_or(INT32_MAX))), false};
}

class Formatter {
public:
    explicit Formatter(std::span<const Value> arguments) : arguments_(arguments) {}

    String format(StringView format) {
        while (!format.empty()) {
            const std::size_t sign = std::min(format.find(u'%'), format.size());
            result_ += format.substr(0, sign);
            format.remove_prefix(sign);
            if (format.empty()) break;
            if (const auto directive = readFormatDirective(format)) {
                append(*directive);
                format.remove_prefix(directive->length);
            } else {
                result_ += u'%';
                format.remove_prefix(1);
            }
        }
        return std::move(result_);
    }

private:
    [[nodiscard]] Value argument(std::size_t index) const {
        return index < arguments_.size() ? arguments_[index] : Value();
    }

    std::int64_t count(const FormatDirective::Count& count) {
        if (!count.isArgument) return static_cast<std::int64_t>(count.number);
        return std::clamp(argument(next_++).integerValue(), -kMostDigits, kMostDigits);
    }

    void append(FormatDirective directive) {
        if (directive.conversion == u'%') {
            result_ += u'%';
            return;
        }
        const std::int64_t width = count(directive.width);
        directive.isLeft |= width < 0;  // as in C
        Wanted wanted{directive, static_cast<std::size_t>(std::abs(width))};
        if (directive.precision) {
            const auto precision = static_cast<int>(count(*directive.precision));
            if (precision >= 0) wanted.precision = precision;
        }
        const std::size_t index = directive.position == 0 ? next_++ : directive.position - 1;
        const String text = padded(converted(argument(index), wanted), wanted);
        const bool isUpper = isOneOf(directive.conversion, u"XFEGA");
        result_ += isUpper ? upperCase(text) : text;
    }

    std::span<const Value> arguments_;
    std::size_t next_ = 0;
    String result_;
};

}  // namespace

String stringWithFormat(StringView format, std::span<const Value> arguments) {
    return Formatter(arguments).format(format);
}

String stringWithFormat(StringView format, std::initializer_list<Value> arguments) {
    return stringWithFormat(format, std::span<const Value>(arguments.begin(), arguments.size()));
}

}  // namespace QZCore
