#include "workdays.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string_view>

#include "QZCore/dates/iso8601.h"
#include "QZCore/dates/work_time.h"
#include "QZCore/platform/clock.h"

namespace qznote {
namespace {

using namespace QZCore;

constexpr std::array<std::string_view, 7> kWeekdays{"sun", "mon", "tue", "wed",
                                                    "thu", "fri", "sat"};

/// A unit of time by its mark on the command line, the largest first.
struct Unit {
    std::string_view mark;
    std::string_view name;
    std::int64_t DateComponents::*field;
};

constexpr Unit kUnits[] = {
    {"y", "years", &DateComponents::year},       {"mo", "months", &DateComponents::month},
    {"w", "weeks", &DateComponents::weekOfYear}, {"d", "days", &DateComponents::day},
    {"h", "hours", &DateComponents::hour},       {"m", "minutes", &DateComponents::minute},
};

/// Work time as the library takes it.
struct WorkTime {
    WorkDays days;
    std::optional<DateComponents> start{};
    std::optional<DateComponents> end{};
};

std::optional<Date> dateOf(std::string_view text) {
    if (text == "now") return sharedWallClock()->now();
    return dateFromISO8601String(fromUTF8(text), *sharedTimeZone());
}

/// The part before the first `mark`, which is taken off `rest` with it.
std::string_view taken(std::string_view& rest, char mark) {
    const std::string_view part = rest.substr(0, rest.find(mark));
    rest.remove_prefix(std::min(part.size() + 1, rest.size()));
    return part;
}

std::optional<WorkDays> daysOf(std::string_view names) {
    std::vector<std::uint64_t> days;
    while (!names.empty()) {
        const auto* day = std::find(kWeekdays.begin(), kWeekdays.end(), taken(names, ','));
        if (day == kWeekdays.end()) return std::nullopt;
        days.push_back(static_cast<std::uint64_t>(day - kWeekdays.begin()) + 1);
    }
    return WorkDays(std::move(days));
}

template <class Number>
std::optional<Number> numberOf(std::string_view& text) {
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

std::optional<DateComponents> clockOf(std::string_view text) {
    const auto hour = numberOf<unsigned>(text);
    if (!hour || *hour > 23 || !text.starts_with(':')) return std::nullopt;
    text.remove_prefix(1);
    const auto minute = numberOf<unsigned>(text);
    if (!minute || *minute > 59 || !text.empty()) return std::nullopt;
    return DateComponents::dateComponentsWithHour(*hour, *minute, 0);
}

std::optional<DateComponents> amountOf(std::string_view text) {
    const auto number = numberOf<std::int64_t>(text);
    const auto* unit = std::find_if(std::begin(kUnits), std::end(kUnits),
                                    [&](const Unit& known) { return known.mark == text; });
    if (!number || !isDefined(*number) || unit == std::end(kUnits)) return std::nullopt;
    DateComponents amount;
    amount.*unit->field = *number;
    return amount;
}

std::string inWords(const DateComponents& distance) {
    for (const Unit& unit : kUnits) {
        const std::int64_t amount = distance.*unit.field;
        if (!isDefined(amount)) continue;
        const std::string_view name = unit.name.substr(0, unit.name.size() - (amount == 1 ? 1 : 0));
        return std::to_string(amount) + " " + std::string(name);
    }
    return "none";
}

std::optional<WorkTime> workTimeOf(const WorkdaysQuestion& question) {
    const auto days = daysOf(question.days);
    if (!days) return std::nullopt;
    if (question.hours.empty()) return WorkTime{*days};
    std::string_view hours = question.hours;
    const auto start = clockOf(taken(hours, '-'));
    const auto end = clockOf(hours);
    if (!start || !end) return std::nullopt;
    return WorkTime{*days, start, end};
}

std::string shown(Date date) {
    const auto zone = sharedTimeZone();
    return toUTF8(iso8601String(date, *zone, ISO8601Form::InternetDateTime));
}

}  // namespace

std::variant<std::string, UsageFault> answer(const WorkdaysQuestion& question) {
    const auto date = dateOf(question.date);
    if (!date) return UsageFault{"no such date: " + question.date};
    const auto work = workTimeOf(question);
    if (!work) return UsageFault{"no such days or hours"};
    if (!question.amount.empty()) {
        const auto amount = amountOf(question.amount);
        if (!amount) return UsageFault{"no such amount: " + question.amount};
        return shown(dateByAddingComponents(*date, *amount, work->days, work->start, work->end)) +
               "\n";
    }
    if (!question.end.empty()) {
        const auto end = dateOf(question.end);
        if (!end) return UsageFault{"no such date: " + question.end};
        return inWords(componentsToDate(*date, *end, work->days, work->start, work->end)) + "\n";
    }
    return isWorkingWithWorkDays(*date, work->days, work->start, work->end) ? "yes\n" : "no\n";
}

}  // namespace qznote
