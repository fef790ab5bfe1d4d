#include "foundation/date_text.h"

namespace QZCore {
namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

}  // namespace

std::string digits(std::int64_t value, std::size_t fewest) {
    const std::string text = std::to_string(value);
    return text.size() >= fewest ? text : std::string(fewest - text.size(), '0') + text;
}

std::string yearText(std::int64_t year) {
    if (year < 0) return "-" + digits(-year, 4);
    return (year > 9999 ? "+" : "") + digits(year, 4);
}

bool DateScanner::take(char character) {
    if (text_.empty() || text_.front() != character) return false;
    text_.remove_prefix(1);
    return true;
}

std::optional<std::int64_t> DateScanner::number(std::size_t fewest, std::size_t most) {
    std::size_t count = 0;
    std::int64_t value = 0;
    while (count < text_.size() && count < most && isDigit(text_[count])) {
        value = value * 10 + (text_[count++] - '0');
    }
    if (count < fewest) return std::nullopt;
    text_.remove_prefix(count);
    return value;
}

std::optional<int> DateScanner::field(char mark, int low, int high) {
    if (!take(mark)) return std::nullopt;
    const auto value = number(2, 2);
    if (!value || *value < low || *value > high) return std::nullopt;
    return static_cast<int>(*value);
}

std::optional<std::int64_t> DateScanner::year() {
    const bool negative = take('-');
    if (!negative) (void)take('+');  // says what no sign says
    const auto year = number(4, 9);
    if (!year) return std::nullopt;
    return negative ? -*year : *year;
}

}  // namespace QZCore
