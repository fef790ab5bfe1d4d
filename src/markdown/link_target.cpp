#include "markdown/link_target.h"

namespace QZCore {
namespace {

bool isEscapable(char16_t unit) {
    return StringView(u"\\`*_()[]#+-!").find(unit) != StringView::npos;
}

/// Whether a URL's query may hold the byte as it is (RFC 3986, section 3.4).
bool isAllowedInQuery(char byte) {
    if ((byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') ||
        (byte >= 'A' && byte <= 'Z')) {
        return true;
    }
    return std::string_view("-._~!$&'()*+,;=:@/?").find(byte) != std::string_view::npos;
}

String percentEncoded(StringView text) {
    constexpr StringView kDigits = u"0123456789ABCDEF";
    String encoded;
    for (const char byte : toUTF8(text)) {
        const auto value = static_cast<std::uint8_t>(byte);
        if (isAllowedInQuery(byte)) {
            encoded.push_back(static_cast<char16_t>(value));
        } else {
            encoded += {u'%', kDigits[value >> 4], kDigits[value & 15]};
        }
    }
    return encoded;
}

}  // namespace

String withoutEscapes(StringView text) {
    String plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == u'\\' && i + 1 < text.size() && isEscapable(text[i + 1])) ++i;
        plain.push_back(text[i]);
    }
    return plain;
}

std::optional<URL> urlForTarget(StringView target) {
    const String plain = withoutEscapes(target);
    if (auto url = URL::fromString(plain)) return url;
    return URL::fromString(percentEncoded(plain));
}

Value linkForTarget(StringView target) {
    if (auto url = urlForTarget(target)) return *std::move(url);
    return withoutEscapes(target);
}

}  // namespace QZCore
