#include "codecs/percent.h"

#include <algorithm>

#include "QZCore/codecs/transforming.h"
#include "foundation/hexadecimal.h"
#include "foundation/percent_encoding.h"

namespace QZCore {
namespace {

// What a query allows, less the delimiters that give a query its form.
constexpr PlainBytes kQueryValueBytes = unreservedAnd("/?");

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

String percentEncodePath(StringView text) { return percentEncoded(toUTF8(text), kPathBytes); }

String percentEncodeQuery(StringView text) {
    return percentEncoded(toUTF8(text), kQueryValueBytes);
}

}  // namespace QZCore
