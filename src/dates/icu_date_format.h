// Dates written and read by ICU, with the system's rules of time zones.
#pragma once

#include <memory>
#include <optional>

#include "QZCore/dates/date_formatter.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/text.h"
#include "QZCore/platform/time_zone.h"

namespace QZCore {

/// What decides how a date is written.
struct DateFormatRules {
    String locale;
    String calendar;  // empty for that of the locale
    DateFormatterStyle dateStyle = DateFormatterStyle::None;
    DateFormatterStyle timeStyle = DateFormatterStyle::None;
    std::optional<String> pattern;  // goes before the styles
    std::shared_ptr<const TimeZone> timeZone;

    [[nodiscard]] std::size_t textLength() const {
        return locale.size() + (pattern ? pattern->size() : 0);
    }

    friend bool operator==(const DateFormatRules&, const DateFormatRules&) = default;
};

/// A way of writing dates, made once for its rules.
class DateFormat {
public:
    /// The format for `rules`, which want a pattern or a style. Formats in use
    /// are kept, since making one costs as much as thirty uses.
    [[nodiscard]] static std::shared_ptr<const DateFormat> forRules(const DateFormatRules& rules);

    virtual ~DateFormat() = default;

    /// The text of a date; nothing when the pattern or the date does not allow
    /// any.
    [[nodiscard]] virtual std::optional<String> write(Date date) const = 0;

    /// The date of a whole text. Every kind of space may stand for another.
    [[nodiscard]] virtual std::optional<Date> read(StringView text) const = 0;
};

}  // namespace QZCore
