// Bytes, instants and addresses: the small values that property lists,
// archives and attributes hold beside numbers and texts.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// A sequence of bytes.
using Data = std::vector<std::uint8_t>;

/// A view of bytes that somebody else owns.
using DataView = std::span<const std::uint8_t>;

/// The bytes of a text, seen as data.
[[nodiscard]] inline DataView bytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// Data, seen as the bytes of a text.
[[nodiscard]] inline std::string_view textOf(DataView data) {
    return {reinterpret_cast<const char*>(data.data()), data.size()};
}

/// An instant: seconds since 1 January 1970, 00:00:00 UTC, fractions and
/// negative values included. Leap seconds are not counted.
struct Date {
    /// The seconds.
    double secondsSince1970 = 0;

    /// Exact comparison; a date that is not a number equals nothing.
    friend constexpr bool operator==(const Date&, const Date&) = default;
};

/// A uniform resource locator, kept as it was written.
struct URL {
    /// The text; not checked when it is set directly.
    String absoluteString;

    /// `string` as a URL, or nothing when it is empty or holds a character
    /// that a URL must escape (a blank, a control character, one of
    /// "<>\"\\^`{|}", anything outside ASCII), a "%" without two hexadecimal
    /// digits, or a second "#". RFC 3986, sections 2 and 3.
    [[nodiscard]] QZ_EXPORT static std::optional<URL> fromString(StringView string);

    /// The URL of a file; every byte of the path that a URL must escape is
    /// written as "%" and two digits.
    [[nodiscard]] QZ_EXPORT static URL fromFilePath(std::string_view path);

    /// Exact comparison of the text.
    friend bool operator==(const URL&, const URL&) = default;
};

}  // namespace QZCore
