#include "platform/file_url.h"

#include <charconv>

#include "QZCore/foundation/files.h"

namespace QZCore {
namespace {

/// `text` with every "%" and two digits replaced by their byte; nothing when
/// a "%" stands alone or the result holds a zero byte, which no path can.
std::optional<std::string> percentDecoded(std::string_view text) {
    std::string decoded;
    while (!text.empty()) {
        unsigned char byte = static_cast<unsigned char>(text.front());
        std::size_t length = 1;
        if (byte == '%') {
            length = 3;
            if (text.size() < length) return std::nullopt;
            const char* end = text.data() + length;
            if (std::from_chars(text.data() + 1, end, byte, 16).ptr != end) return std::nullopt;
        }
        if (byte == 0) return std::nullopt;
        decoded.push_back(static_cast<char>(byte));
        text.remove_prefix(length);
    }
    return decoded;
}

/// The path of this machine that `url` names, still percent-encoded.
std::optional<std::string_view> encodedPath(std::string_view url) {
    url = url.substr(0, url.find_first_of("?#"));
    url.remove_prefix(std::string_view("file:").size());
    if (url.starts_with("//")) {
        url.remove_prefix(2);
        const std::string_view host = url.substr(0, url.find('/'));
        if (!host.empty() && host != "localhost") return std::nullopt;
        url.remove_prefix(host.size());
    }
    return url.starts_with('/') ? std::optional(url) : std::nullopt;
}

}  // namespace

std::optional<Data> readFileUrl(std::string_view url, std::size_t limit) {
    const std::optional<std::string_view> encoded = encodedPath(url);
    if (!encoded) return std::nullopt;
    const std::optional<std::string> path = percentDecoded(*encoded);
    if (!path) return std::nullopt;
    return readFile(*path, limit);
}

}  // namespace QZCore
