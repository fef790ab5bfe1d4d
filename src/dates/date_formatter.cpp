#include "QZCore/dates/date_formatter.h"

#include <array>

#include "QZCore/foundation/preferences.h"
#include "QZCore/platform/user_locales.h"
#include "dates/icu_date_format.h"
#include "dates/icu_locale.h"

namespace QZCore {
namespace {

struct StyleWord {
    StringView word;
    DateFormatterStyle style;
};

constexpr std::array kStyleWords{
    StyleWord{u"*SHORT", DateFormatterStyle::Short},
    StyleWord{u"*MEDIUM", DateFormatterStyle::Medium},
    StyleWord{u"*LONG", DateFormatterStyle::Long},
    StyleWord{u"*FULL", DateFormatterStyle::Full},
};

std::optional<DateFormatterStyle> styleNamed(StringView word) {
    for (const StyleWord& row : kStyleWords) {
        if (row.word == word) return row.style;
    }
    return std::nullopt;
}

String preferredLocale() {
    const Preferences& preferences = Preferences::shared();
    String chosen = preferences.stringForKey(u"Date Locale");
    if (namesLocale(chosen)) return chosen;
    const auto locales = sharedUserLocales();
    if (preferences.boolForKey(u"Date Locale Use Preferred Language", true)) {
        const std::vector<String> languages = locales->preferredLanguages();
        if (!languages.empty()) return languages.front();
    }
    return locales->currentLocale();
}

/// The calendar that the user prefers for dates; empty for the formatter's own.
String preferredCalendar() {
    const Preferences& preferences = Preferences::shared();
    const Value chosen = preferences.objectForKey(u"Date Calendar Identifier");
    if (!chosen.isAbsent()) return chosen.stringValue();
    if (!preferences.boolForKey(u"Date Calendar Use Default Identifier", true)) return {};
    return calendarOfLocale(sharedUserLocales()->currentLocale());
}

/// Whether a formatter writes Christmas with the month in front.
bool beginsWithMonth(DateFormatter formatter) {
    DateFormatter reader(u"en_US_POSIX");
    reader.setDateFormat(u"yyyy-MM-dd");
    const auto christmas = reader.dateFromString(u"2021-12-25");
    formatter.setDateStyle(DateFormatterStyle::Short);
    return christmas && formatter.stringFromDate(*christmas).starts_with(u"12");
}

}  // namespace

DateFormatter::DateFormatter() : locale_(sharedUserLocales()->currentLocale()) {}

DateFormatter::DateFormatter(StringView localeIdentifier) : locale_(localeIdentifier) {}

DateFormatter DateFormatter::preferredLanguageDateFormatter() {
    DateFormatter formatter(preferredLocale());
    formatter.setCalendarIdentifier(preferredCalendar());
    return formatter;
}

bool DateFormatter::prefersMonthDay() {
    static const bool isMonthFirst = beginsWithMonth(preferredLanguageDateFormatter());
    return isMonthFirst;
}

String DateFormatter::calendarIdentifier() const {
    return calendar_.empty() ? calendarOfLocale(locale_) : calendar_;
}

bool DateFormatter::setCalendarIdentifier(StringView identifier) {
    if (!namesCalendar(identifier)) return false;
    calendar_ = identifier;
    return true;
}

std::shared_ptr<const TimeZone> DateFormatter::timeZone() const {
    return timeZone_ == nullptr ? sharedTimeZone() : timeZone_;
}

DateFormatter& DateFormatter::setDateStyleOrFormat(StringView styleOrFormat) {
    timeStyle_ = DateFormatterStyle::None;
    dateStyle_ = styleOrPattern(styleOrFormat);
    return *this;
}

DateFormatter& DateFormatter::setTimeStyleOrFormat(StringView styleOrFormat) {
    dateStyle_ = DateFormatterStyle::None;
    timeStyle_ = styleOrPattern(styleOrFormat);
    return *this;
}

DateFormatterStyle DateFormatter::styleOrPattern(StringView text) {
    const auto style = styleNamed(text);
    if (!style) pattern_ = text;
    return style.value_or(DateFormatterStyle::None);
}

String DateFormatter::stringFromDate(Date date) const {
    const auto format = this->format();
    return format == nullptr ? String() : format->write(date).value_or(String());
}

std::optional<Date> DateFormatter::dateFromString(StringView text) const {
    const auto format = this->format();
    if (format == nullptr) return std::nullopt;
    return format->read(trimmedOfWhitespaceAndNewlines(text));
}

String DateFormatter::stringForObjectValue(const Value& object) const {
    const Date* date = object.date();
    return date == nullptr ? String() : stringFromDate(*date);
}

bool DateFormatter::getObjectValue(Value& object, StringView forString,
                                   String* errorDescription) const {
    const auto date = dateFromString(forString);
    if (date) object = *date;
    if (!date && errorDescription != nullptr) *errorDescription = u"The date cannot be read.";
    return date.has_value();
}

std::shared_ptr<const DateFormat> DateFormatter::format() const {
    const bool isSilent = !pattern_ && dateStyle_ == DateFormatterStyle::None &&
                          timeStyle_ == DateFormatterStyle::None;
    if (isSilent) return nullptr;
    return DateFormat::forRules({locale_, calendar_, dateStyle_, timeStyle_, pattern_, timeZone()});
}

}  // namespace QZCore
