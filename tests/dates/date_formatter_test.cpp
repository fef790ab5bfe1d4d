#include "QZCore/dates/date_formatter.h"

#include <cmath>
#include <limits>
#include <random>

#include "QZCore/dates/calendar.h"
#include "QZCore/dates/iso8601.h"
#include "QZCore/dates/relative_date_formatter.h"
#include "QZCore/platform/string_table.h"
#include "support/locale_scope.h"
#include "support/preference_setting.h"
#include "support/printing.h"
#include "support/time_scope.h"

namespace QZCore {
namespace {

using testing::FixedNow;
using testing::LocaleScope;
using testing::PreferenceSetting;
using testing::ZoneScope;
using Style = DateFormatterStyle;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

Date at(std::int64_t year, std::int64_t month, std::int64_t day, std::int64_t hour = 0,
        std::int64_t minute = 0) {
    return *gregorianCalendar().dateFromComponents(
        DateComponents::dateComponentsWithYear(year, month, day, hour, minute, 0));
}

DateFormatter formatter(StringView locale, Style date, Style time) {
    DateFormatter made(locale);
    made.setDateStyle(date);
    made.setTimeStyle(time);
    return made;
}

String written(StringView locale, StringView pattern, Date date) {
    DateFormatter made(locale);
    made.setDateFormat(String(pattern));
    return made.stringFromDate(date);
}

}  // namespace

TEST_CASE("styles and patterns are those of the locale") {
    const ZoneScope berlin(u"Europe/Berlin");
    const Date date = at(2021, 12, 25, 14, 5);
    struct Row {
        const char* why;
        StringView locale;
        Style date;
        Style time;
        StringView text;
    };
    const Row rows[] = {
        {"short", u"de_DE", Style::Short, Style::Short, u"25.12.21, 14:05"},
        {"long, and a hyphen in the name", u"de-DE", Style::Long, Style::None,
         u"25. Dezember 2021"},
        {"full", u"en_GB", Style::Full, Style::None, u"Saturday, 25 December 2021"},
        {"medium", u"en_US", Style::Medium, Style::None, u"Dec 25, 2021"},
        {"the space before PM is the locale's", u"en_US", Style::None, Style::Short,
         u"2:05\u202FPM"},
        {"the zone", u"de_DE", Style::None, Style::Long, u"14:05:00 MEZ"},
        {"nothing at all", u"de_DE", Style::None, Style::None, u""},
        {"a locale that is none", u"?", Style::Short, Style::None, u"2021-12-25"},
        {"a part that is too long", u"de_AAAAAAAAEG", Style::None, Style::Full,
         u"14:05:00 GMT+01:00"},
        {"digits and a calendar that are none", u"de_DE@numbers=jn;calendar=none", Style::Short,
         Style::None, u"25.12.21"},
        {"a name with more than letters", u"de_DEDcalendar=roc", Style::None, Style::Full,
         u"14:05:00 GMT+01:00"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(formatter(row.locale, row.date, row.time).stringFromDate(date) == row.text);
    }
    CHECK(written(u"fr_FR", u"EEEE d MMMM", date) == u"samedi 25 d\u00E9cembre");
    CHECK(written(u"fr_FR", u"hello J", date).empty());
    CHECK(written(u"fr_FR", u"'open", date) == u"open");
    CHECK(written(u"fr_FR", u"", date).empty());
    CHECK(written(u"fr_FR", String(5000, u'*'), date) == String(5000, u'*'));
}

TEST_CASE("dates are written by the calendar and the zone rules of the library") {
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> seconds(-1e11, 8e9);
    for (const StringView zone : {u"America/New_York", u"Africa/Cairo", u"Pacific/Apia",
                                  u"Australia/Lord_Howe", u"Europe/Dublin"}) {
        const ZoneScope scope(zone);
        CAPTURE(zone);
        for (int i = 0; i < 400; ++i) {
            const Date date{std::floor(seconds(random))};
            CAPTURE(date.secondsSince1970);
            const String text = written(u"en_US_POSIX", u"G uuuu-MM-dd HH:mm:ss XXXXX", date);
            const String iso = iso8601String(date, scope.zone(), ISO8601Form::InternetDateTime);
            const std::size_t sign = iso.starts_with(u'-') ? 1 : 0;
            REQUIRE(dateFromISO8601String(iso, *TimeZone::utc()) == date);
            const StringView era = iso < u"0001" ? u"BC " : u"AD ";
            String spaced = iso;
            spaced[iso.find(u'T', sign)] = u' ';
            spaced.insert(spaced.find(u':') + 6, 1, u' ');
            REQUIRE(text == String(era) + spaced);
        }
    }
    const ZoneScope dublin(u"Europe/Dublin");
    CHECK(written(u"en_IE", u"zzzz", at(2021, 7, 1)) == u"Irish Standard Time");
    CHECK(written(u"en_IE", u"zzzz", at(2021, 1, 1)) == u"Greenwich Mean Time");
    DateFormatter far = formatter(u"en_US", Style::Short, Style::Short);
    for (const double odd : {kNaN, 1e300, -1e300, 1e15}) {
        CHECK(far.stringFromDate({odd}).empty());
    }
    far.setTimeZone(TimeZone::timeZoneWithName(u"Asia/Kathmandu"));
    CHECK(far.stringFromDate({0}) == u"1/1/70, 5:30\u202FAM");
}

TEST_CASE("what a formatter writes it reads again") {
    const ZoneScope berlin(u"Europe/Berlin");
    for (const StringView locale : {u"en_US", u"de_DE", u"es_ES", u"ja_JP", u"th_TH", u"fa_IR"}) {
        for (const Style style : {Style::Short, Style::Medium, Style::Long, Style::Full}) {
            const DateFormatter both = formatter(locale, style, Style::Short);
            const Date date = at(2021, 12, 25, 14, 5);
            CAPTURE(both.stringFromDate(date));
            CHECK(both.dateFromString(u" " + both.stringFromDate(date) + u"\n") == date);
        }
    }
    const DateFormatter times = formatter(u"en_US", Style::Short, Style::Short);
    CHECK(times.dateFromString(u"12/25/21, 2:05 PM") == at(2021, 12, 25, 14, 5));
    Value object(7);
    String why;
    for (const StringView text :
         {u"", u"12/25/21", u"12/25/21, 2:05 PM and more", u"13/45/21, 2:05 PM"}) {
        CAPTURE(text);
        CHECK_FALSE(times.getObjectValue(object, text, &why));
    }
    CHECK_FALSE(times.getObjectValue(object, String(1'000'000, u'1')));
    CHECK(object == Value(7));
    CHECK(why == u"The date cannot be read.");
    CHECK(times.getObjectValue(object, u"12/25/21, 2:05 PM"));
    CHECK(times.stringForObjectValue(object) == u"12/25/21, 2:05\u202FPM");
    CHECK(times.stringForObjectValue(u"12/25/21").empty());
}

TEST_CASE("the preferred locale and calendar come from preferences, languages and locale") {
    const Value absent;
    struct Row {
        const char* why;
        Value locale, usesLanguage, calendar, usesDefault;
        StringView expectedLocale, expectedCalendar;
    };
    const Row rows[] = {
        {"nothing set", absent, absent, absent, absent, u"fr", u"buddhist"},
        {"a locale", u"de_DE", absent, absent, absent, u"de_DE", u"buddhist"},
        {"a text that names no locale", u"no such", absent, absent, absent, u"fr", u"buddhist"},
        {"no language", absent, false, absent, absent, u"th_TH", u"buddhist"},
        {"a calendar", absent, absent, u"japanese", absent, u"fr", u"japanese"},
        {"no such calendar", absent, absent, u"Mayan", absent, u"fr", u"gregorian"},
        {"the formatter's own", absent, absent, absent, false, u"fr", u"gregorian"},
    };
    const LocaleScope thai(u"th_TH", {u"fr", u"en"});
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const PreferenceSetting locale(u"Date Locale", row.locale);
        const PreferenceSetting language(u"Date Locale Use Preferred Language", row.usesLanguage);
        const PreferenceSetting calendar(u"Date Calendar Identifier", row.calendar);
        const PreferenceSetting standard(u"Date Calendar Use Default Identifier", row.usesDefault);
        const DateFormatter made = DateFormatter::preferredLanguageDateFormatter();
        CHECK(made.localeIdentifier() == row.expectedLocale);
        CHECK(made.calendarIdentifier() == row.expectedCalendar);
        CHECK(made.dateStyle() == Style::None);
        CHECK(made.timeStyle() == Style::None);
    }
    const LocaleScope silent(u"de_DE");
    DateFormatter own = DateFormatter::preferredLanguageDateFormatter();
    CHECK(own.localeIdentifier() == u"de_DE");
    CHECK(own.setCalendarIdentifier(u"buddhist"));
    CHECK_FALSE(own.setCalendarIdentifier(u"Buddhist"));
    CHECK(own.setDateStyleOrFormat(u"*LONG").stringFromDate(at(2023, 12, 25)) ==
          u"25. Dezember 2566 BE");
}

TEST_CASE("whether short dates begin with the month is found out once") {
    for (const StringView locale : {u"en_US", u"de_DE"}) {
        const LocaleScope scope(locale);
        CHECK(DateFormatter::prefersMonthDay());
    }
}

TEST_CASE("a style word sets one style, any other text the pattern") {
    DateFormatter made(u"de_DE");
    made.setTimeStyle(Style::Short);
    made.setDateStyleOrFormat(u"*LONG");
    CHECK(made.dateStyle() == Style::Long);
    CHECK(made.timeStyle() == Style::None);
    made.setTimeStyleOrFormat(u"*FULL");
    CHECK(made.dateStyle() == Style::None);
    CHECK(made.timeStyle() == Style::Full);
    made.setDateStyleOrFormat(u"d MMM");
    CHECK(made.dateStyle() == Style::None);
    CHECK(made.timeStyle() == Style::None);
    // A pattern stays in force until another one is set.
    made.setTimeStyleOrFormat(u"*SHORT");
    CHECK(made.timeStyle() == Style::Short);
    CHECK(made.stringFromDate(at(2021, 12, 25)) == u"25 Dez.");
    made.setTimeStyleOrFormat(u"*short");
    CHECK(made.dateFormat() == u"*short");
    CHECK(made.timeStyle() == Style::None);
}

TEST_CASE("a relative date formatter names the days around now") {
    struct French final : StringTable {
        [[nodiscard]] String localizedString(StringView key) const override {
            return key == u"Today" ? u"Aujourd\u2019hui" : String(key);
        }
    };
    const ZoneScope apia(u"Pacific/Apia");  // 30 December 2011 was left out there
    const FixedNow now(at(2011, 12, 31, 0, 30));
    const LocaleScope locale(u"de_DE", {u"de"});
    QZRelativeDateFormatter made(formatter(u"en_GB", Style::Short, Style::None));
    CHECK(made.stringForObjectValue(at(2011, 12, 31, 23, 59)) == u"Today");
    CHECK(made.stringForObjectValue(at(2011, 12, 29)) == u"Yesterday");
    CHECK(made.stringForObjectValue(at(2011, 12, 28)) == u"28/12/2011");
    CHECK(made.stringForObjectValue(at(2012, 1, 1)) == u"Tomorrow");
    CHECK(made.stringForObjectValue(at(2012, 1, 2)) == u"02/01/2012");
    CHECK(made.stringForObjectValue(u"Today").empty());
    CHECK(made.stringForObjectValue(Date{kNaN}).empty());
    made.setTimeStyle(Style::Short);
    CHECK(made.stringForObjectValue(at(2011, 12, 31, 14, 5)) == u"Today 14:05");
    CHECK(made.stringForObjectValue(at(2012, 1, 2, 14, 5)) == u"02/01/2012, 14:05");
    const auto before = setSharedStringTable(std::make_shared<French>());
    CHECK(made.stringForObjectValue(at(2011, 12, 31, 14, 5)) == u"Aujourd\u2019hui 14:05");
    setSharedStringTable(before);
}

TEST_CASE("ISO 8601 has the local date, whole seconds and the offset") {
    const auto zone = [](StringView name) { return TimeZone::timeZoneWithName(name); };
    constexpr auto kTime = ISO8601Form::InternetDateTime;
    CHECK(iso8601String({1'709'301'900.9}, *TimeZone::utc(), kTime) == u"2024-03-01T14:05:00Z");
    CHECK(iso8601String({1'709'301'900}, *zone(u"Asia/Kathmandu"), kTime) ==
          u"2024-03-01T19:50:00+05:45");
    CHECK(iso8601String({1'709'254'800}, *zone(u"America/New_York"), ISO8601Form::FullDate) ==
          u"2024-02-29");
    CHECK(iso8601String({-4'000'000'000}, *zone(u"America/New_York"), kTime) ==
          u"1843-03-31T11:57:18-04:56:02");
    CHECK(iso8601String({-65'000'000'000}, *TimeZone::utc(), ISO8601Form::FullDate) ==
          u"-0090-03-27");
    CHECK(iso8601String({300'000'000'000}, *TimeZone::utc(), ISO8601Form::FullDate) ==
          u"+11476-08-15");
    CHECK(iso8601String({kNaN}, *TimeZone::utc(), kTime).empty());
}

TEST_CASE("ISO 8601 is read in its usual forms") {
    const auto berlin = TimeZone::timeZoneWithName(u"Europe/Berlin");
    struct Row {
        StringView text;
        std::optional<double> seconds;
    };
    const Row rows[] = {
        {u"2024-03-01", 1'709'247'600},
        {u"2024-03-01 14:05", 1'709'298'300},
        {u"2024-03-01T14:05:00Z", 1'709'301'900},
        {u"2024-03-01T14:05:00.25-01:30", 1'709'307'300.25},
        {u"2024-03-01T14:05+00:00:02", 1'709'301'898},
        {u"-0001-01-01T00:00Z", -62'198'755'200},
        {u"2023-02-29", std::nullopt},
        {u"2024-03-01T24:00", std::nullopt},
        {u"2024-03-01T14", std::nullopt},
        {u"2024-03-01Z", std::nullopt},
        {u"2024-03-01T14:05:00.", std::nullopt},
        {u"2024-03-01T14:05:00 Z", std::nullopt},
        {u"2024-3-1", std::nullopt},
        {u"999999999-01-01", std::nullopt},
        {u"", std::nullopt},
    };
    for (const Row& row : rows) {
        CAPTURE(row.text);
        const auto date = dateFromISO8601String(row.text, *berlin);
        CHECK((date ? std::optional(date->secondsSince1970) : std::nullopt) == row.seconds);
    }
}

}  // namespace QZCore
