#include "QZCore/foundation/data.h"

#include "foundation/hexadecimal.h"
#include "foundation/percent_encoding.h"

namespace QZCore {
namespace {

/// What a URL may hold as it is; "%" and "#" only where they belong.
constexpr PlainBytes kUrlBytes = unreservedAnd("!$&'()*+,;=:@/?[]#%");

bool standsAsItIs(char16_t unit) { return unit < kUrlBytes.size() && kUrlBytes[unit]; }

}  // namespace

std::optional<URL> URL::fromString(StringView string) {
    if (string.empty()) return std::nullopt;
    bool fragment = false;
    for (std::size_t i = 0; i < string.size(); ++i) {
        if (!standsAsItIs(string[i])) return std::nullopt;
        if (string[i] == u'%' && !hexByte(string.substr(i + 1))) return std::nullopt;
        if (string[i] != u'#') continue;
        if (fragment) return std::nullopt;
        fragment = true;
    }
    return URL{String(string)};
}

URL URL::fromFilePath(std::string_view path) {
    return URL{u"file://" + percentEncoded(path, kPathBytes)};
}

}  // namespace QZCore
