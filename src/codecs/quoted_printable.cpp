#include <algorithm>

#include "QZCore/codecs/transforming.h"
#include "codecs/literal_search.h"
#include "codecs/percent.h"
#include "foundation/hexadecimal.h"

namespace QZCore {

String stringToQuotedPrintableFormat(StringView text) {
    const std::string bytes = toUTF8(text);
    String result;
    result.reserve(bytes.size() * 3);
    for (const char byte : bytes) {
        result.push_back(u'=');
        appendHexByte(result, static_cast<std::uint8_t>(byte));
    }
    return result;
}

std::optional<String> stringFromQuotedPrintableFormat(StringView text) {
    String escapes = replacingOccurrences(text, u"=\r\n", u"");
    std::ranges::replace(escapes, u'=', u'%');
    return percentDecoded(escapes);
}

}  // namespace QZCore
