#include "QZCore/dates/number_formatter.h"

#include <cmath>
#include <string>

#include "QZCore/platform/user_locales.h"
#include "dates/icu_number_format.h"
#include "dates/icu_text.h"
#include "dates/number_bounds.h"

namespace QZCore {
namespace {

// No number that somebody types is longer, and ICU needs more than linear time.
constexpr std::size_t kLongestNumber = 1000;

Value numberIn(const icu::Formattable& parsed) {
    switch (parsed.getType()) {
        case icu::Formattable::kLong:
            return parsed.getLong();
        case icu::Formattable::kInt64:
            return static_cast<std::int64_t>(parsed.getInt64());
        case icu::Formattable::kDouble:
            return std::isnan(parsed.getDouble()) ? Value() : Value(parsed.getDouble());
        default:
            return {};
    }
}

void explain(String* errorDescription, StringView why) {
    if (errorDescription != nullptr) *errorDescription = why;
}

/// Stores a number that was read, if there is one and the bounds hold it.
bool accept(Value& object, const Value& number, const NumberBounds& bounds,
            String* errorDescription) {
    if (number.isAbsent()) {
        explain(errorDescription, u"The number cannot be read.");
        return false;
    }
    if (bounds.isBelow(number)) {
        explain(errorDescription, u"The number is too small.");
        return false;
    }
    if (bounds.isAbove(number)) {
        explain(errorDescription, u"The number is too large.");
        return false;
    }
    object = number;
    return true;
}

}  // namespace

NumberFormatter::NumberFormatter() : locale_(sharedUserLocales()->currentLocale()) {}

NumberFormatter::NumberFormatter(StringView localeIdentifier) : locale_(localeIdentifier) {}

String NumberFormatter::stringFromNumber(const Value& number) const {
    const auto format = numberFormatFor({locale_, style_, fewestDecimals_, mostDecimals_});
    if (format == nullptr || !number.isNumber()) return {};
    icu::UnicodeString text;
    if (number.kind() == ValueKind::Unsigned) {
        const std::string digits = std::to_string(number.unsignedIntegerValue());
        UErrorCode status = U_ZERO_ERROR;
        format->format(icu::StringPiece(digits), text, nullptr, status);
    } else if (number.kind() == ValueKind::Real) {
        format->format(number.doubleValue(), text);
    } else {
        format->format(static_cast<int64_t>(number.integerValue()), text);
    }
    return stringOf(text);
}

Value NumberFormatter::parsed(StringView text, std::size_t& used) const {
    used = 0;
    const auto format = numberFormatFor({locale_, style_, fewestDecimals_, mostDecimals_});
    StringView rest = text;
    while (!rest.empty() && isWhitespaceOrNewline(rest.front())) rest.remove_prefix(1);
    const bool hasPlus = rest.size() > 1 && rest.front() == u'+' && rest[1] != u'-';
    if (hasPlus) rest.remove_prefix(1);
    if (format == nullptr || rest.empty() || rest.size() > kLongestNumber) return {};
    icu::Formattable result;
    icu::ParsePosition position(0);
    format->parse(viewOf(rest), result, position);
    if (position.getErrorIndex() >= 0 || position.getIndex() == 0) return {};
    used = text.size() - rest.size() + static_cast<std::size_t>(position.getIndex());
    return numberIn(result);
}

Value NumberFormatter::numberFromString(StringView text) const {
    const StringView trimmed = trimmedOfWhitespaceAndNewlines(text);
    std::size_t used = 0;
    const Value number = parsed(trimmed, used);
    return used == trimmed.size() ? number : Value();
}

Value NumberFormatter::numberInRange(StringView text, Range& range) const {
    range = clampedRange(range, text.size());
    return parsed(text.substr(range.location, range.length), range.length);
}

String NumberFormatter::stringForObjectValue(const Value& object) const {
    return stringFromNumber(object);
}

bool NumberFormatter::getObjectValue(Value& object, StringView forString,
                                     String* errorDescription) const {
    return accept(object, numberFromString(forString), {minimum_, maximum_}, errorDescription);
}

bool NumberFormatter::getObjectValue(Value& object, StringView forString, Range& range,
                                     String* errorDescription) const {
    return accept(object, numberInRange(forString, range), {minimum_, maximum_}, errorDescription);
}

}  // namespace QZCore
