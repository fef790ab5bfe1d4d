// Percent-encoding of bytes, for URLs.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Which bytes stand as they are.
using PlainBytes = std::array<bool, 256>;

/// The unreserved characters of RFC 3986 and `others`.
[[nodiscard]] constexpr PlainBytes unreservedAnd(std::string_view others) {
    PlainBytes plain{};
    for (char c = 'A'; c <= 'Z'; ++c) plain[static_cast<std::uint8_t>(c)] = true;
    for (char c = 'a'; c <= 'z'; ++c) plain[static_cast<std::uint8_t>(c)] = true;
    for (char c = '0'; c <= '9'; ++c) plain[static_cast<std::uint8_t>(c)] = true;
    for (const char c : std::string_view("-._~")) plain[static_cast<std::uint8_t>(c)] = true;
    for (const char c : others) plain[static_cast<std::uint8_t>(c)] = true;
    return plain;
}

/// What a URL's path may hold as it is.
inline constexpr PlainBytes kPathBytes = unreservedAnd("!$&'()*+,;=:@/");

/// What a URL's query may hold as it is.
inline constexpr PlainBytes kQueryBytes = unreservedAnd("!$&'()*+,;=:@/?");

/// `bytes` with all but the plain ones written as "%" and two digits.
[[nodiscard]] String percentEncoded(std::string_view bytes, const PlainBytes& plain);

}  // namespace QZCore
