#include "foundation/property_list_scalars.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "foundation/civil_date.h"
#include "foundation/date_text.h"

namespace QZCore {
namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\n\r";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool beginsLikeNumber(std::string_view text) {
    if (text.starts_with('-')) text.remove_prefix(1);
    return !text.empty() && (isDigit(text[0]) || text[0] == '.');
}

/// `text` without a leading plus sign, which from_chars does not read.
std::string_view withoutPlus(std::string_view text) {
    const bool plus = text.starts_with('+') && !text.starts_with("+-");
    return plus && beginsLikeNumber(text.substr(1)) ? text.substr(1) : text;
}

template <class Integer>
std::optional<Integer> wholeInteger(std::string_view text) {
    Integer value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

/// A word for what is not finite.
std::optional<double> wordReal(std::string_view text) {
    const String word = fromUTF8(text);
    const bool isSigned = word.starts_with(u'+') || word.starts_with(u'-');
    const StringView rest = StringView(word).substr(isSigned ? 1 : 0);
    if (equalsIgnoringAsciiCase(word, u"nan")) return std::numeric_limits<double>::quiet_NaN();
    if (!equalsIgnoringAsciiCase(rest, u"inf") && !equalsIgnoringAsciiCase(rest, u"infinity")) {
        return std::nullopt;
    }
    const double infinity = std::numeric_limits<double>::infinity();
    return word.starts_with(u'-') ? -infinity : infinity;
}

}  // namespace

bool isPropertyListText(StringView text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at];
        if (unit < u' ' && unit != u'\t' && unit != u'\n' && unit != u'\r') return false;
        if (unit < 0xD800) continue;
        if (unit >= 0xFFFE || isLowSurrogate(unit)) return false;
        if (!isHighSurrogate(unit)) continue;
        if (++at == text.size() || !isLowSurrogate(text[at])) return false;
    }
    return true;
}

std::optional<Value> propertyListInteger(std::string_view text) {
    text = withoutPlus(trimmed(text));
    if (const auto value = wholeInteger<std::int64_t>(text)) return Value(*value);
    if (const auto value = wholeInteger<std::uint64_t>(text)) return Value(*value);
    return std::nullopt;
}

std::optional<double> propertyListReal(std::string_view text) {
    text = withoutPlus(trimmed(text));
    // from_chars reads words, too, and more of them than are wanted.
    if (!beginsLikeNumber(text)) return wordReal(text);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::invalid_argument || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return error == std::errc() ? value : doubleValue(fromUTF8(text));
}

std::optional<Date> propertyListDate(std::string_view text) {
    DateScanner scanner(trimmed(text));
    const auto year = scanner.year();
    if (!year) return std::nullopt;
    const auto month = scanner.field('-', 1, 12);
    if (!month) return std::nullopt;
    const auto day = scanner.field('-', 1, daysInMonth(*year, *month));
    const auto hour = scanner.field('T', 0, 23);
    const auto minute = scanner.field(':', 0, 59);
    const auto second = scanner.field(':', 0, 59);
    if (!day || !hour || !minute || !second) return std::nullopt;
    if (!scanner.take('Z') || !scanner.atEnd()) return std::nullopt;
    const std::int64_t seconds = daysFromCivil({*year, *month, *day}) * kSecondsPerDay +
                                 std::int64_t{*hour} * 3600 + std::int64_t{*minute} * 60 + *second;
    const Date date{static_cast<double>(seconds)};
    if (std::abs(date.secondsSince1970) > kFarthestDate) return std::nullopt;
    return date;
}

std::string propertyListText(double value) {
    if (std::isnan(value)) return "nan";
    if (std::isinf(value)) return value < 0 ? "-infinity" : "+infinity";
    std::array<char, 32> text;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

std::optional<std::string> propertyListText(Date date) {
    const double rounded = std::round(date.secondsSince1970);
    if (!(std::abs(rounded) <= kFarthestDate)) return std::nullopt;
    const auto seconds = static_cast<std::int64_t>(rounded);
    const std::int64_t days = floorDivided(seconds, kSecondsPerDay);
    const std::int64_t ofDay = seconds - days * kSecondsPerDay;
    const CivilDate civil = civilFromDays(days);
    return yearText(civil.year) + "-" + digits(civil.month, 2) + "-" + digits(civil.day, 2) + "T" +
           digits(ofDay / 3600, 2) + ":" + digits(ofDay / 60 % 60, 2) + ":" +
           digits(ofDay % 60, 2) + "Z";
}

}  // namespace QZCore
