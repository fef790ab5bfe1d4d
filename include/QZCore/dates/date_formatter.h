// Dates as text, by the customs of a locale or by a pattern.
//
// Styles say how long the date and the time are; the locale decides the rest.
// A pattern names the fields letter by letter, as Unicode's locale data define
// them: "yyyy-MM-dd HH:mm", "EEEE d MMMM". Local time is by the same rules of
// time zones as everywhere in the library. The Gregorian calendar, and those
// that count its years differently, are taken to hold for all time.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "QZCore/dates/formatter.h"
#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/platform/time_zone.h"

namespace QZCore {

/// How much of a date or a time is written.
enum class DateFormatterStyle : std::uint8_t {
    None = 0,    // nothing
    Short = 1,   // "12/25/21", "2:05 PM"
    Medium = 2,  // "Dec 25, 2021", "2:05:00 PM"
    Long = 3,    // "December 25, 2021", with the time zone
    Full = 4,    // "Saturday, December 25, 2021", with the time zone's name
};

class DateFormat;

/// Writes and reads dates. Begins without styles or pattern, and then writes
/// nothing. Spaces between the parts of a time are those of the locale's data,
/// often U+202F; what is read may have ordinary ones.
class QZ_EXPORT DateFormatter : public Formatter {
public:
    /// A formatter in the user's locale.
    DateFormatter();
    /// A formatter in the locale of that name, as "de_CH". A name that makes no
    /// sense gives forms that are those of no country.
    explicit DateFormatter(StringView localeIdentifier);

    /// A formatter in the locale and calendar that the user prefers for dates.
    /// The locale is that of the preference "Date Locale" if it names one; else,
    /// unless the preference "Date Locale Use Preferred Language" is off, the
    /// first of the user's languages; else the user's locale. The calendar is
    /// that of the preference "Date Calendar Identifier"; else, unless "Date
    /// Calendar Use Default Identifier" is off, the one of the user's locale.
    /// A calendar that does not exist leaves the one of the formatter's locale.
    [[nodiscard]] static DateFormatter preferredLanguageDateFormatter();

    /// Whether the user's short dates begin with the month, as "12/25/21". Found
    /// out once; later changes of preferences do not matter.
    [[nodiscard]] static bool prefersMonthDay();

    // ---- Locale, calendar and time zone ----

    /// The name of the locale.
    [[nodiscard]] const String& localeIdentifier() const { return locale_; }
    /// The name of the calendar, as "gregorian" or "buddhist".
    [[nodiscard]] String calendarIdentifier() const;
    /// Takes the calendar of that name; false, and nothing changes, when there
    /// is none.
    bool setCalendarIdentifier(StringView identifier);

    /// The time zone: the process's one, whichever that is when the formatter is
    /// used, unless another was set.
    [[nodiscard]] std::shared_ptr<const TimeZone> timeZone() const;
    /// Takes a time zone; an empty pointer stands for the process's one.
    void setTimeZone(std::shared_ptr<const TimeZone> timeZone) { timeZone_ = std::move(timeZone); }

    // ---- Styles and pattern ----

    /// How much is written of the date.
    [[nodiscard]] DateFormatterStyle dateStyle() const { return dateStyle_; }
    /// Sets how much is written of the date.
    void setDateStyle(DateFormatterStyle style) { dateStyle_ = style; }
    /// How much is written of the time.
    [[nodiscard]] DateFormatterStyle timeStyle() const { return timeStyle_; }
    /// Sets how much is written of the time.
    void setTimeStyle(DateFormatterStyle style) { timeStyle_ = style; }
    /// The pattern, if one was set.
    [[nodiscard]] const std::optional<String>& dateFormat() const { return pattern_; }
    /// Sets a pattern. As long as there is one, styles do not count.
    void setDateFormat(std::optional<String> pattern) { pattern_ = std::move(pattern); }

    /// Sets the time style to none and then the date style, for "*SHORT",
    /// "*MEDIUM", "*LONG" and "*FULL". Any other text is taken as the pattern,
    /// and the date style is none, too. Returns this formatter.
    DateFormatter& setDateStyleOrFormat(StringView styleOrFormat);
    /// The same with date and time exchanged.
    DateFormatter& setTimeStyleOrFormat(StringView styleOrFormat);

    // ---- Writing and reading ----

    /// The text for a date. Empty when there is neither style nor pattern, when
    /// the pattern has letters that mean nothing, and for a date that is not a
    /// number or farther away than five million years.
    [[nodiscard]] String stringFromDate(Date date) const;

    /// The date that a whole text of at most 1,000 units stands for, spaces
    /// around it aside; nothing when it does not follow the pattern or the
    /// styles. Fields that are not written are those of 1 January 1970, 0:00.
    [[nodiscard]] std::optional<Date> dateFromString(StringView text) const;

    /// The text for a date; empty for any other value.
    [[nodiscard]] String stringForObjectValue(const Value& object) const override;

    /// Reads a date, as `dateFromString` does.
    bool getObjectValue(Value& object, StringView forString,
                        String* errorDescription = nullptr) const override;

private:
    /// The style that a word names; none for a text that becomes the pattern.
    DateFormatterStyle styleOrPattern(StringView text);

    /// How it writes now; null for nothing.
    [[nodiscard]] std::shared_ptr<const DateFormat> format() const;

    String locale_;
    String calendar_;  // empty for that of the locale
    DateFormatterStyle dateStyle_ = DateFormatterStyle::None;
    DateFormatterStyle timeStyle_ = DateFormatterStyle::None;
    std::optional<String> pattern_;
    std::shared_ptr<const TimeZone> timeZone_;
};

}  // namespace QZCore
