#include "dates/icu_date_format.h"

#include <unicode/dtfmtsym.h>
#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include <cmath>
#include <mutex>
#include <utility>
#include <vector>

#include "dates/format_cache.h"
#include "dates/icu_locale.h"
#include "dates/icu_text.h"
#include "dates/icu_time_zone.h"

namespace QZCore {
namespace {

constexpr double kMillisecondsPerSecond = 1000;

// ICU's calendars go no farther than 5.8 million years.
constexpr double kFarthestMillisecond = 1.8e17;

// Nobody types a longer date, and ICU needs more than linear time to read one.
constexpr std::size_t kLongestDate = 1000;

icu::DateFormat::EStyle icuStyle(DateFormatterStyle style) {
    switch (style) {
        case DateFormatterStyle::None:
            return icu::DateFormat::kNone;
        case DateFormatterStyle::Short:
            return icu::DateFormat::kShort;
        case DateFormatterStyle::Medium:
            return icu::DateFormat::kMedium;
        case DateFormatterStyle::Long:
            return icu::DateFormat::kLong;
        case DateFormatterStyle::Full:
            return icu::DateFormat::kFull;
    }
    return icu::DateFormat::kNone;
}

/// Null when the pattern is longer than a text of ICU's can be.
std::unique_ptr<icu::DateFormat> icuFormat(const DateFormatRules& rules) {
    if (rules.pattern && rules.pattern->size() > INT32_MAX) return nullptr;
    const icu::Locale locale = icuLocale(rules.locale, rules.calendar);
    if (!rules.pattern) {
        return std::unique_ptr<icu::DateFormat>(icu::DateFormat::createDateTimeInstance(
            icuStyle(rules.dateStyle), icuStyle(rules.timeStyle), locale));
    }
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(viewOf(*rules.pattern), locale, status);
    return U_FAILURE(status) != 0 ? nullptr : std::move(format);
}

/// The format for `rules`, with our calendar and our time zone.
std::unique_ptr<icu::SimpleDateFormat> simpleFormat(const DateFormatRules& rules) {
    std::unique_ptr<icu::DateFormat> format = icuFormat(rules);
    std::unique_ptr<icu::SimpleDateFormat> simple(
        dynamic_cast<icu::SimpleDateFormat*>(format.get()));
    if (simple == nullptr) return nullptr;
    (void)format.release();
    simple->adoptTimeZone(icuTimeZone(rules.timeZone).release());
    std::unique_ptr<icu::Calendar> calendar(simple->getCalendar()->clone());
    if (auto* gregorian = dynamic_cast<icu::GregorianCalendar*>(calendar.get())) {
        UErrorCode status = U_ZERO_ERROR;
        gregorian->setGregorianChange(-kFarthestMillisecond, status);
    }
    simple->adoptCalendar(calendar.release());
    return simple;
}

/// `text` with every kind of space as an ordinary one.
icu::UnicodeString plainlySpaced(icu::UnicodeString text) {
    for (std::int32_t i = 0; i < text.length(); ++i) {
        if (u_isUWhiteSpace(text.charAt(i)) != 0) text.setCharAt(i, u' ');
    }
    return text;
}

/// Makes a format that reads what it writes read ordinary spaces, too.
void takeOrdinarySpaces(icu::SimpleDateFormat& format) {
    icu::UnicodeString pattern;
    format.applyPattern(plainlySpaced(format.toPattern(pattern)));
    icu::DateFormatSymbols symbols(*format.getDateFormatSymbols());
    std::int32_t count = 0;
    const icu::UnicodeString* halves = symbols.getAmPmStrings(count);
    std::vector<icu::UnicodeString> plain(halves, halves + count);
    for (icu::UnicodeString& half : plain) half = plainlySpaced(std::move(half));
    symbols.setAmPmStrings(plain.data(), count);
    format.setDateFormatSymbols(symbols);
}

class IcuDateFormat final : public DateFormat {
public:
    explicit IcuDateFormat(const DateFormatRules& rules) : writer_(simpleFormat(rules)) {}

    [[nodiscard]] std::optional<String> write(Date date) const override {
        const double milliseconds = date.secondsSince1970 * kMillisecondsPerSecond;
        if (writer_ == nullptr || !(std::abs(milliseconds) <= kFarthestMillisecond)) {
            return std::nullopt;
        }
        UErrorCode status = U_ZERO_ERROR;
        icu::UnicodeString text;
        writer_->format(milliseconds, text, nullptr, status);
        if (U_FAILURE(status) != 0) return std::nullopt;
        return stringOf(text);
    }

    [[nodiscard]] std::optional<Date> read(StringView text) const override {
        if (writer_ == nullptr || text.empty() || text.size() > kLongestDate) return std::nullopt;
        const icu::UnicodeString plain = plainlySpaced(viewOf(text));
        icu::ParsePosition position(0);
        const UDate milliseconds = reader().parse(plain, position);
        const bool isWhole = position.getErrorIndex() < 0 && position.getIndex() == plain.length();
        if (!isWhole) return std::nullopt;
        return Date{milliseconds / kMillisecondsPerSecond};
    }

private:
    [[nodiscard]] const icu::SimpleDateFormat& reader() const {
        std::call_once(readerMade_, [this] {
            reader_.reset(writer_->clone());
            reader_->setLenient(0);
            takeOrdinarySpaces(*reader_);
        });
        return *reader_;
    }

    std::unique_ptr<icu::SimpleDateFormat> writer_;  // null when the rules allow none
    mutable std::once_flag readerMade_;
    mutable std::unique_ptr<icu::SimpleDateFormat> reader_;
};

std::shared_ptr<const DateFormat> makeFormat(const DateFormatRules& rules) {
    return std::make_shared<const IcuDateFormat>(rules);
}

}  // namespace

std::shared_ptr<const DateFormat> DateFormat::forRules(const DateFormatRules& rules) {
    static auto& cache = *new FormatCache<DateFormatRules, DateFormat>;
    return cache.formatFor(rules, makeFormat);
}

}  // namespace QZCore
