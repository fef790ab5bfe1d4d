#include "QZCore/codecs/transforming.h"

namespace QZCore {

String stringByRemovingCharactersInSet(StringView text, const CharacterSet& set) {
    return stringByReplacingCharactersInSet(text, set, {});
}

String stringByReplacingCharactersInSet(StringView text, const CharacterSet& set,
                                        StringView withString) {
    String result;
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = codePointAt(text, at);
        result.append(set.contains(point.value) ? withString : text.substr(at, point.length));
        at += point.length;
    }
    return result;
}

}  // namespace QZCore
