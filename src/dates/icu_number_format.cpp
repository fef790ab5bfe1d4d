#include "dates/icu_number_format.h"

#include <algorithm>

#include "dates/format_cache.h"
#include "dates/icu_locale.h"

namespace QZCore {
namespace {

// ICU writes no more digits.
constexpr int kMostDecimals = 340;

UNumberFormatStyle icuStyle(NumberFormatterStyle style) {
    switch (style) {
        case NumberFormatterStyle::None:
        case NumberFormatterStyle::Decimal:
            return UNUM_DECIMAL;
        case NumberFormatterStyle::Currency:
            return UNUM_CURRENCY;
        case NumberFormatterStyle::Percent:
            return UNUM_PERCENT;
        case NumberFormatterStyle::Scientific:
            return UNUM_SCIENTIFIC;
    }
    return UNUM_DECIMAL;
}

void setDecimals(icu::NumberFormat& format, const NumberFormatRules& rules) {
    if (rules.mostDecimals) {
        format.setMaximumFractionDigits(std::clamp(*rules.mostDecimals, 0, kMostDecimals));
    }
    if (rules.fewestDecimals) {
        format.setMinimumFractionDigits(std::clamp(*rules.fewestDecimals, 0, kMostDecimals));
    }
}

std::shared_ptr<const icu::NumberFormat> makeFormat(const NumberFormatRules& rules) {
    UErrorCode status = U_ZERO_ERROR;
    const std::shared_ptr<icu::NumberFormat> format(
        icu::NumberFormat::createInstance(icuLocale(rules.locale), icuStyle(rules.style), status));
    if (U_FAILURE(status) != 0) return nullptr;
    if (rules.style == NumberFormatterStyle::None) {
        format->setGroupingUsed(0);
        format->setMaximumFractionDigits(0);
    }
    setDecimals(*format, rules);
    return format;
}

}  // namespace

std::shared_ptr<const icu::NumberFormat> numberFormatFor(const NumberFormatRules& rules) {
    static auto& cache = *new FormatCache<NumberFormatRules, icu::NumberFormat>;
    return cache.formatFor(rules, makeFormat);
}

}  // namespace QZCore
