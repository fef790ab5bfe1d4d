// The texts of numbers and dates in property lists, and which texts they hold.
// Nothing here depends on the host's locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "QZCore/foundation/data.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// The instants that can be written, in seconds around 1970: beyond them, not
/// every whole second is a double.
inline constexpr double kFarthestDate = 9'007'199'254'740'992;

/// Whether `text` can be written as XML 1.0: no control characters but tab and
/// line ends, no unpaired surrogates, no U+FFFE and U+FFFF.
[[nodiscard]] bool isPropertyListText(StringView text);

// The readers below skip white space at both ends and give nothing unless all
// the rest is what they read.

/// A decimal integer between the smallest signed and the largest unsigned of
/// 64 bits.
[[nodiscard]] std::optional<Value> propertyListInteger(std::string_view text);

/// A decimal number; out of range it becomes 0 or an infinity. "nan", "inf"
/// and "infinity" are read in lower and upper case, the last two with a sign.
[[nodiscard]] std::optional<double> propertyListReal(std::string_view text);

/// A date as year-month-dayThour:minute:secondZ with a year of 4 to 9 digits
/// and an optional sign.
[[nodiscard]] std::optional<Date> propertyListDate(std::string_view text);

/// The shortest text that `propertyListReal` reads as `value`.
[[nodiscard]] std::string propertyListText(double value);

/// The nearest whole second as `propertyListDate` reads it; nothing for what
/// is not a number or beyond `kFarthestDate`.
[[nodiscard]] std::optional<std::string> propertyListText(Date date);

}  // namespace QZCore
