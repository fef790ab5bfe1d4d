// Numbers written and read by ICU.
#pragma once

#include <unicode/numfmt.h>

#include <memory>
#include <optional>

#include "QZCore/dates/number_formatter.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// What decides how a number is written.
struct NumberFormatRules {
    String locale;
    NumberFormatterStyle style = NumberFormatterStyle::None;
    std::optional<int> fewestDecimals;
    std::optional<int> mostDecimals;

    [[nodiscard]] std::size_t textLength() const { return locale.size(); }

    friend bool operator==(const NumberFormatRules&, const NumberFormatRules&) = default;
};

/// The format for `rules`; null when ICU's data lack it. Formats in use are kept.
[[nodiscard]] std::shared_ptr<const icu::NumberFormat> numberFormatFor(
    const NumberFormatRules& rules);

}  // namespace QZCore
