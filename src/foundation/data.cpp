#include "QZCore/foundation/data.h"

#include <array>

namespace QZCore {
namespace {

bool isHexDigit(char16_t unit) {
    return (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'f') ||
           (unit >= u'A' && unit <= u'F');
}

/// For each ASCII character, whether a URL may hold it as it is.
constexpr auto kStandsAsItIs = [] {
    std::array<bool, 0x80> table{};
    for (std::size_t unit = 0x21; unit < 0x7F; ++unit) table[unit] = true;
    for (const char16_t unit : StringView(u"\"<>\\^`{|}")) table[unit] = false;
    return table;
}();

bool standsAsItIs(char16_t unit) { return unit < kStandsAsItIs.size() && kStandsAsItIs[unit]; }

bool isEscape(StringView text, std::size_t at) {
    return text.size() - at >= 3 && isHexDigit(text[at + 1]) && isHexDigit(text[at + 2]);
}

}  // namespace

std::optional<URL> URL::fromString(StringView string) {
    if (string.empty()) return std::nullopt;
    bool fragment = false;
    for (std::size_t i = 0; i < string.size(); ++i) {
        if (!standsAsItIs(string[i])) return std::nullopt;
        if (string[i] == u'%' && !isEscape(string, i)) return std::nullopt;
        if (string[i] != u'#') continue;
        if (fragment) return std::nullopt;
        fragment = true;
    }
    return URL{String(string)};
}

URL URL::fromFilePath(std::string_view path) {
    constexpr std::string_view kKept = "/-._~!$&'()*+,;=:@";
    constexpr StringView kDigits = u"0123456789ABCDEF";
    String text = u"file://";
    for (const char character : path) {
        const auto byte = static_cast<std::uint8_t>(character);
        const bool letterOrDigit = (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') ||
                                   (byte >= 'A' && byte <= 'Z');
        if (letterOrDigit || kKept.find(character) != std::string_view::npos) {
            text.push_back(static_cast<char16_t>(byte));
        } else {
            text += {u'%', kDigits[byte >> 4], kDigits[byte & 15]};
        }
    }
    return URL{text};
}

}  // namespace QZCore
