// Dates as "Today", "Yesterday" and "Tomorrow".
#pragma once

#include "QZCore/dates/date_formatter.h"
#include "QZCore/export.h"

namespace QZCore {

/// A date formatter that names the days around now: "Yesterday", or "Today
/// 14:05" when its time style is not none. The words are those that the shared
/// string table has for "Today", "Yesterday" and "Tomorrow"; the time is that of
/// a `preferredLanguageDateFormatter`. Days are those of the process's time
/// zone.
class QZ_EXPORT QZRelativeDateFormatter : public DateFormatter {
public:
    /// In the user's locale, without styles.
    QZRelativeDateFormatter() = default;
    /// Writes other days as `formatter` does.
    explicit QZRelativeDateFormatter(const DateFormatter& formatter);

    /// The text for a date; empty for any other value. Days that have no word
    /// are written by the styles or the pattern of this formatter.
    [[nodiscard]] String stringForObjectValue(const Value& object) const override;
};

}  // namespace QZCore
