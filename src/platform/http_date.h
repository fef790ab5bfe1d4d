// Dates in HTTP fields.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace QZCore {

/// The seconds since 1970 of an HTTP date in any of its three forms
/// ("Sun, 06 Nov 1994 08:49:37 GMT", "Sunday, 06-Nov-94 08:49:37 GMT",
/// "Sun Nov  6 08:49:37 1994"); nothing when `text` is none. RFC 9110, section
/// 5.6.7. A year of two digits lies between 1970 and 2069.
[[nodiscard]] std::optional<std::int64_t> httpDate(std::string_view text);

}  // namespace QZCore
