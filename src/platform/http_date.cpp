#include "platform/http_date.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <vector>

namespace QZCore {
namespace {

constexpr std::array<std::string_view, 12> kMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

/// The pieces of a date as they are written.
struct DateWords {
    std::string_view day, month, year, time;
};

std::vector<std::string_view> wordsOf(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> words;
    while (true) {
        text.remove_prefix(std::min(text.find_first_not_of(separators), text.size()));
        if (text.empty()) return words;
        const std::size_t length = std::min(text.find_first_of(separators), text.size());
        words.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
}

/// The first word, the day of the week, says nothing new.
std::optional<DateWords> dateWordsOf(std::string_view text) {
    const std::vector<std::string_view> words = wordsOf(text, " ,-");
    if (words.size() == 6 && words[5] == "GMT") {
        return DateWords{words[1], words[2], words[3], words[4]};
    }
    if (words.size() == 5) return DateWords{words[2], words[1], words[4], words[3]};
    return std::nullopt;
}

/// A number of `fewest` to `most` digits and nothing else.
std::optional<int> numberOf(std::string_view text, std::size_t fewest, std::size_t most) {
    int number = 0;
    if (text.size() < fewest || text.size() > most) return std::nullopt;
    if (text.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::optional<int> yearOf(std::string_view text) {
    const std::optional<int> year = numberOf(text, 2, 4);
    if (!year || text.size() != 2) return year;
    return *year + (*year < 70 ? 2000 : 1900);
}

std::optional<std::chrono::year_month_day> dayOf(const DateWords& words) {
    const auto month = std::ranges::find(kMonths, words.month);
    const std::optional<int> day = numberOf(words.day, 1, 2);
    const std::optional<int> year = yearOf(words.year);
    if (month == kMonths.end() || !day || !year) return std::nullopt;
    const std::chrono::year_month_day date{
        std::chrono::year(*year), std::chrono::month(unsigned(month - kMonths.begin()) + 1),
        std::chrono::day(unsigned(*day))};
    return date.ok() ? std::optional(date) : std::nullopt;
}

/// The seconds since midnight; a leap second is allowed.
std::optional<std::int64_t> timeOf(std::string_view text) {
    const std::vector<std::string_view> words = wordsOf(text, ":");
    if (words.size() != 3) return std::nullopt;
    const std::optional<int> hour = numberOf(words[0], 2, 2);
    const std::optional<int> minute = numberOf(words[1], 2, 2);
    const std::optional<int> second = numberOf(words[2], 2, 2);
    if (!hour || !minute || !second) return std::nullopt;
    if (*hour > 23 || *minute > 59 || *second > 60) return std::nullopt;
    return *hour * 3600 + *minute * 60 + *second;
}

}  // namespace

std::optional<std::int64_t> httpDate(std::string_view text) {
    constexpr std::int64_t kDay = 86400;
    const std::optional<DateWords> words = dateWordsOf(text);
    if (!words) return std::nullopt;
    const auto day = dayOf(*words);
    const auto time = timeOf(words->time);
    if (!day || !time) return std::nullopt;
    return std::chrono::sys_days(*day).time_since_epoch().count() * kDay + *time;
}

}  // namespace QZCore
