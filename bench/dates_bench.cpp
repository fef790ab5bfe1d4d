// Work time beside the literal stepping through ICU's calendar, and plain sums
// beside QDateTime. Monday to Friday, 9 to 17 o'clock, in Berlin.
#include <benchmark/benchmark.h>
#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include <QDateTime>
#include <QTimeZone>
#include <memory>

#include "QZCore/dates.h"

namespace {

using namespace QZCore;

const WorkDays kWeek{2, 3, 4, 5, 6};
const DateComponents kNine = DateComponents::dateComponentsWithHour(9, 0, 0);
const DateComponents kFive = DateComponents::dateComponentsWithHour(17, 0, 0);

/// 5 January 2026, a Monday, 10 o'clock in Berlin.
constexpr double kStart = 1'767'603'600;

void useBerlin() { setSharedTimeZone(TimeZone::timeZoneWithName(u"Europe/Berlin")); }

// ---- Stepping ---------------------------------------------------------------

/// A cursor on ICU's calendar.
class Stepper {
public:
    Stepper() : calendar_(icu::TimeZone::createTimeZone("Europe/Berlin"), status_) {
        calendar_.setTime(kStart * 1000, status_);
    }

    void step(UCalendarDateFields unit) { calendar_.add(unit, 1, status_); }
    [[nodiscard]] bool isWorkDay() {
        const std::int32_t weekday = calendar_.get(UCAL_DAY_OF_WEEK, status_);
        return weekday >= 2 && weekday <= 6;
    }
    [[nodiscard]] bool isInHours() {
        const std::int32_t millis = calendar_.get(UCAL_MILLISECONDS_IN_DAY, status_);
        return millis > 9 * 3'600'000 && millis <= 17 * 3'600'000;
    }
    [[nodiscard]] double seconds() { return calendar_.getTime(status_) / 1000; }

private:
    UErrorCode status_ = U_ZERO_ERROR;
    icu::GregorianCalendar calendar_;
};

double steppedDays(std::int64_t days) {
    Stepper cursor;
    while (days > 0) {
        cursor.step(UCAL_DATE);
        if (cursor.isWorkDay()) --days;
    }
    return cursor.seconds();
}

double steppedMinutes(std::int64_t minutes) {
    Stepper cursor;
    while (minutes > 0) {
        cursor.step(UCAL_MINUTE);
        if (cursor.isWorkDay() && cursor.isInHours()) --minutes;
    }
    return cursor.seconds();
}

double steppedDistance(std::int64_t days) {
    Stepper cursor;
    const double end = kStart + static_cast<double>(days) * 86'400 + 77;
    double count = 0;
    while (cursor.seconds() < end) {
        cursor.step(UCAL_MINUTE);
        if (cursor.isWorkDay() && cursor.isInHours()) ++count;
    }
    return count;
}

// ---- Counting ---------------------------------------------------------------

double countedDays(std::int64_t days) {
    return dateByAddingComponents({kStart}, DateComponents::dateComponentsWithDay(days), kWeek)
        .secondsSince1970;
}

double countedMinutes(std::int64_t minutes) {
    return dateByAddingComponents({kStart}, DateComponents::dateComponentsWithMinute(minutes),
                                  kWeek, kNine, kFive)
        .secondsSince1970;
}

double countedDistance(std::int64_t days) {
    const Date end{kStart + static_cast<double>(days) * 86'400 + 77};
    return static_cast<double>(componentsToDate({kStart}, end, kWeek, kNine, kFive).minute);
}

// ---- Plain sums -------------------------------------------------------------

double plainMonths(std::int64_t months) {
    return dateByAddingComponents({kStart}, DateComponents::dateComponentsWithMonth(months))
        .secondsSince1970;
}

double qtMonths(std::int64_t months) {
    static const auto& start = *new QDateTime(QDateTime::fromSecsSinceEpoch(
        static_cast<qint64>(kStart), QTimeZone(QByteArrayLiteral("Europe/Berlin"))));
    return static_cast<double>(start.addMonths(static_cast<int>(months)).toSecsSinceEpoch());
}

// ---- Tables of dates --------------------------------------------------------

/// The dates of a table, some hours apart.
double dateOfRow(std::int64_t row) { return kStart + static_cast<double>(row) * 12'345; }

double tableByFormatter(std::int64_t rows, const DateFormatter& formatter) {
    double units = 0;
    for (std::int64_t row = 0; row < rows; ++row) {
        units += static_cast<double>(formatter.stringForObjectValue(Date{dateOfRow(row)}).size());
    }
    return units;
}

double writtenTable(std::int64_t rows) {
    DateFormatter formatter(u"en_US");
    formatter.setDateStyle(DateFormatterStyle::Medium);
    formatter.setTimeStyle(DateFormatterStyle::Short);
    return tableByFormatter(rows, formatter);
}

double writtenRelativeTable(std::int64_t rows) {
    QZRelativeDateFormatter formatter{DateFormatter(u"en_US")};
    formatter.setDateStyle(DateFormatterStyle::Medium);
    formatter.setTimeStyle(DateFormatterStyle::Short);
    return tableByFormatter(rows, formatter);
}

/// One formatter of ICU's, with its own rules of the zone.
double icuTable(std::int64_t rows) {
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateTimeInstance(
        icu::DateFormat::kMedium, icu::DateFormat::kShort, icu::Locale("en_US")));
    format->adoptTimeZone(icu::TimeZone::createTimeZone("Europe/Berlin"));
    double units = 0;
    for (std::int64_t row = 0; row < rows; ++row) {
        icu::UnicodeString text;
        format->format(dateOfRow(row) * 1000, text);
        units += text.length();
    }
    return units;
}

template <double (*kJob)(std::int64_t)>
void run(benchmark::State& state) {
    useBerlin();
    for (auto _ : state) benchmark::DoNotOptimize(kJob(state.range(0)));
}

}  // namespace

BENCHMARK(run<countedDays>)->Name("add work days/QZCore")->Arg(10)->Arg(1000)->Arg(100'000);
BENCHMARK(run<steppedDays>)->Name("add work days/stepping")->Arg(10)->Arg(1000);
BENCHMARK(run<countedMinutes>)
    ->Name("add work minutes/QZCore")
    ->Arg(10)
    ->Arg(10'000)
    ->Arg(1'000'000);
BENCHMARK(run<steppedMinutes>)->Name("add work minutes/stepping")->Arg(10)->Arg(10'000);
BENCHMARK(run<countedDistance>)->Name("distance in minutes, days/QZCore")->Arg(30)->Arg(1095);
BENCHMARK(run<steppedDistance>)->Name("distance in minutes, days/stepping")->Arg(30)->Arg(1095);
BENCHMARK(run<plainMonths>)->Name("add months/QZCore")->Arg(7);
BENCHMARK(run<qtMonths>)->Name("add months/Qt")->Arg(7);
BENCHMARK(run<writtenTable>)->Name("table of dates/QZCore")->Arg(100'000);
BENCHMARK(run<writtenRelativeTable>)->Name("table of dates/QZCore, relative")->Arg(100'000);
BENCHMARK(run<icuTable>)->Name("table of dates/ICU, one formatter")->Arg(100'000);
