#include "QZCore/codecs/transforming.h"
#include "QZCore/foundation/log.h"

namespace QZCore {

String safeSubstringWithRange(StringView text, Range range) {
    if (range.end() <= text.size()) return String(text.substr(range.location, range.length));
    logLine(u"Attempting to call substringWithRange with range location " +
            unsignedString(range.location) + u" and length " + unsignedString(range.length) +
            u", our string is length " + unsignedString(text.size()));
    return {};
}

}  // namespace QZCore
