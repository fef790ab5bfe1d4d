#include "codecs/percent.h"

#include <algorithm>
#include <array>

#include "QZCore/codecs/transforming.h"
#include "codecs/hexadecimal.h"

namespace QZCore {
namespace {

using ByteSet = std::array<bool, 256>;

/// The unreserved characters of RFC 3986 and `others`.
constexpr ByteSet unreservedAnd(std::string_view others) {
    ByteSet set{};
    for (char c = 'A'; c <= 'Z'; ++c) set[static_cast<std::uint8_t>(c)] = true;
    for (char c = 'a'; c <= 'z'; ++c) set[static_cast<std::uint8_t>(c)] = true;
    for (char c = '0'; c <= '9'; ++c) set[static_cast<std::uint8_t>(c)] = true;
    for (const char c : std::string_view("-._~")) set[static_cast<std::uint8_t>(c)] = true;
    for (const char c : others) set[static_cast<std::uint8_t>(c)] = true;
    return set;
}

constexpr ByteSet kPathBytes = unreservedAnd("!$&'()*+,;=:@/");

// What a query allows, less the delimiters that give a query its form.
constexpr ByteSet kQueryValueBytes = unreservedAnd("/?");

String percentEncoded(StringView text, const ByteSet& allowed) {
    String result;
    for (const char character : toUTF8(text)) {
        const auto byte = static_cast<std::uint8_t>(character);
        if (allowed[byte]) {
            result.push_back(byte);
        } else {
            result.push_back(u'%');
            appendHexByte(result, byte);
        }
    }
    return result;
}

std::optional<String> fromValidUTF8(std::string_view bytes) {
    String text = fromUTF8(bytes);
    // Faults have become U+FFFD, whose bytes are others than they were.
    if (toUTF8(text) != bytes) return std::nullopt;
    return text;
}

/// Takes the escapes that `rest` begins with.
std::optional<std::string> takeEscapedBytes(StringView& rest) {
    std::string bytes;
    while (rest.starts_with(u'%')) {
        const auto byte = hexByte(rest.substr(1));
        if (!byte) return std::nullopt;
        bytes.push_back(static_cast<char>(*byte));
        rest.remove_prefix(3);
    }
    return bytes;
}

}  // namespace

std::optional<String> percentDecoded(StringView text) {
    String result;
    for (StringView rest = text; !rest.empty();) {
        const std::size_t plain = std::min(rest.find(u'%'), rest.size());
        result.append(rest.substr(0, plain));
        rest.remove_prefix(plain);
        const auto bytes = takeEscapedBytes(rest);
        if (!bytes) return std::nullopt;
        const auto decoded = fromValidUTF8(*bytes);
        if (!decoded) return std::nullopt;
        result.append(*decoded);
    }
    return result;
}

String percentEncodePath(StringView text) { return percentEncoded(text, kPathBytes); }

String percentEncodeQuery(StringView text) { return percentEncoded(text, kQueryValueBytes); }

}  // namespace QZCore
