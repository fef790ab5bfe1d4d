// Numbers as text, by the customs of a locale.
#pragma once

#include <cstdint>
#include <optional>

#include "QZCore/dates/formatter.h"
#include "QZCore/export.h"
#include "QZCore/foundation/range.h"

namespace QZCore {

/// How a number is written.
enum class NumberFormatterStyle : std::uint8_t {
    None = 0,        // "1235": whole, without grouping
    Decimal = 1,     // "1,234.568"
    Currency = 2,    // "$1,234.57", in the locale's currency
    Percent = 3,     // "123,457%": the number is the fraction
    Scientific = 4,  // "1.2345678E3"
};

/// Writes and reads numbers. Not-a-number is written as the locale does and is
/// never read.
class QZ_EXPORT NumberFormatter : public Formatter {
public:
    /// A formatter in the user's locale.
    NumberFormatter();
    /// A formatter in the locale of that name, as "de_CH". A name that makes no
    /// sense gives forms that are those of no country.
    explicit NumberFormatter(StringView localeIdentifier);

    /// The name of the locale.
    [[nodiscard]] const String& localeIdentifier() const { return locale_; }

    /// How numbers are written; `None` at first.
    [[nodiscard]] NumberFormatterStyle numberStyle() const { return style_; }
    /// Sets how numbers are written.
    void setNumberStyle(NumberFormatterStyle style) { style_ = style; }

    /// The fewest and most digits behind the decimal point, from 0 to 340; those
    /// of the style unless set. The larger one holds where they contradict each
    /// other.
    [[nodiscard]] std::optional<int> minimumFractionDigits() const { return fewestDecimals_; }
    /// Sets the fewest; nothing for those of the style.
    void setMinimumFractionDigits(std::optional<int> digits) { fewestDecimals_ = digits; }
    /// The most digits behind the decimal point.
    [[nodiscard]] std::optional<int> maximumFractionDigits() const { return mostDecimals_; }
    /// Sets the most; nothing for those of the style.
    void setMaximumFractionDigits(std::optional<int> digits) { mostDecimals_ = digits; }

    /// The smallest number that may be read; absent for none.
    [[nodiscard]] const Value& minimum() const { return minimum_; }
    /// Sets the smallest; whatever is no number stands for none.
    void setMinimum(const Value& minimum) { minimum_ = minimum; }
    /// The largest number that may be read; absent for none.
    [[nodiscard]] const Value& maximum() const { return maximum_; }
    /// Sets the largest; whatever is no number stands for none.
    void setMaximum(const Value& maximum) { maximum_ = maximum; }

    /// The text for a number; empty when `number` is none.
    [[nodiscard]] String stringFromNumber(const Value& number) const;

    /// The number that a whole text stands for, white space around it and a plus
    /// sign aside: an integer where it is whole and fits, else a real number.
    /// Absent when the text, of at most 1,000 units, is no number.
    [[nodiscard]] Value numberFromString(StringView text) const;

    /// The text for a number; empty for any other value.
    [[nodiscard]] String stringForObjectValue(const Value& object) const override;

    /// Reads a number from a whole text. Fails for a text that is none and for
    /// one below the minimum or above the maximum.
    bool getObjectValue(Value& object, StringView forString,
                        String* errorDescription = nullptr) const override;

    /// Reads the number at the start of `range` and makes `range` the part of
    /// the text that was used.
    virtual bool getObjectValue(Value& object, StringView forString, Range& range,
                                String* errorDescription = nullptr) const;

protected:
    /// The number at the start of a range, white space before it aside; absent
    /// when there is none. `range` becomes the part that was used.
    [[nodiscard]] Value numberInRange(StringView text, Range& range) const;

private:
    [[nodiscard]] Value parsed(StringView text, std::size_t& used) const;

    String locale_;
    NumberFormatterStyle style_ = NumberFormatterStyle::None;
    std::optional<int> fewestDecimals_;
    std::optional<int> mostDecimals_;
    Value minimum_;
    Value maximum_;
};

/// A number formatter that never rejects what was typed: it takes the nearest
/// number that it may.
class QZ_EXPORT QZNumberFormatter : public NumberFormatter {
public:
    using NumberFormatter::NumberFormatter;

    /// Reads a number. One below the minimum becomes the minimum, one above the
    /// maximum the maximum. A text that is no number becomes the minimum, else
    /// the maximum, else 0. An empty text leaves `object` as it is. A minimum or
    /// maximum that is not-a-number counts as absent. Always true.
    bool getObjectValue(Value& object, StringView forString,
                        String* errorDescription = nullptr) const override;

    /// The same by the number at the start of `range`, which becomes the part of
    /// the text that was used.
    bool getObjectValue(Value& object, StringView forString, Range& range,
                        String* errorDescription = nullptr) const override;
};

}  // namespace QZCore
