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

/// Whether `url` is of the scheme of files, in any case; then without it.
bool skipScheme(std::string_view& url) {
    constexpr std::string_view kScheme = "file:";
    const auto isSameLetter = [](char a, char b) { return (a | 0x20) == (b | 0x20); };
    if (url.size() < kScheme.size() ||
        !std::equal(kScheme.begin(), kScheme.end(), url.begin(), isSameLetter)) {
        return false;
    }
    url.remove_prefix(kScheme.size());
    return true;
}

/// The path of this machine that `url` names, still percent-encoded.
std::optional<std::string_view> encodedPath(std::string_view url) {
    url = url.substr(0, url.find_first_of("?#"));
    if (!skipScheme(url)) return std::nullopt;
    if (url.starts_with("//")) {
        url.remove_prefix(2);
        const std::string_view host = url.substr(0, url.find('/'));
        if (!host.empty() && host != "localhost") return std::nullopt;
        url.remove_prefix(host.size());
    }
    return url.starts_with('/') ? std::optional(url) : std::nullopt;
}

}  // namespace

std::optional<std::string> filePathOfUrl(std::string_view url) {
    const std::optional<std::string_view> encoded = encodedPath(url);
    return encoded ? percentDecoded(*encoded) : std::nullopt;
}

std::optional<Data> readFileUrl(std::string_view url, std::size_t limit) {
    const std::optional<std::string> path = filePathOfUrl(url);
    return path ? readFile(*path, limit) : std::nullopt;
}

}  // namespace QZCore
