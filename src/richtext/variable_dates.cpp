#include "richtext/variable_dates.h"

#include "QZCore/dates/iso8601.h"
#include "QZCore/foundation/preferences.h"

namespace QZCore {
namespace {

using Style = DateFormatterStyle;

/// What of a date is written.
struct Parts {
    bool date = false;
    bool time = false;
};

bool contains(StringView text, StringView word) { return text.find(word) != StringView::npos; }

bool isInternetFormat(StringView format) {
    return contains(format, u"ISO8601") || contains(format, u"RFC3339");
}

String internetText(Date date, StringView format, Parts parts) {
    const auto zone = contains(format, u"RFC3339") ? TimeZone::utc() : sharedTimeZone();
    const ISO8601Form form = parts.time ? ISO8601Form::InternetDateTime : ISO8601Form::FullDate;
    return iso8601String(date, *zone, form);
}

Style dateStyle(StringView format) {
    if (format == u"Short") return Style::Short;
    if (format == u"Long") return Style::Long;
    return format == u"Full" ? Style::Full : Style::Medium;
}

/// Long times name their zone, which is much beside a date.
Style timeStyle(StringView format, bool besideDate) {
    const auto longOrMedium = [&](StringView preference, bool otherwise) {
        const bool isMedium = besideDate && Preferences::shared().boolForKey(preference, otherwise);
        return isMedium ? Style::Medium : Style::Long;
    };
    if (format == u"Short") return Style::Short;
    if (format == u"Long") return longOrMedium(u"Long Date With Time Medium", true);
    if (format == u"Full") return longOrMedium(u"Full Date With Time Medium", false);
    return Style::Medium;
}

}  // namespace

std::optional<String> VariableDates::written(Date date, StringView name, const VariableTail& tail) {
    const Parts parts{contains(name, u"Date"), contains(name, u"Time") || tail.withTime};
    String text;
    bool isMeantEmpty = false;
    if (isInternetFormat(tail.format)) {
        text = internetText(date, tail.format, parts);
    } else {
        DateFormatter& dates = formatter();
        const auto pattern = patternOfFormat(tail.format);
        dates.setDateFormat(pattern ? std::optional(String(*pattern)) : std::nullopt);
        dates.setDateStyle(parts.date ? dateStyle(tail.format) : Style::None);
        dates.setTimeStyle(parts.time ? timeStyle(tail.format, parts.date) : Style::None);
        text = dates.stringFromDate(date);
        isMeantEmpty = pattern ? pattern->empty() : !parts.date && !parts.time;
    }
    if (text.empty() && !isMeantEmpty) return std::nullopt;
    return text;
}

DateFormatter& VariableDates::formatter() {
    if (!formatter_) formatter_ = DateFormatter::preferredLanguageDateFormatter();
    return *formatter_;
}

}  // namespace QZCore
