#include "QZCore/codecs/transforming.h"
#include "platform/letters.h"

namespace QZCore {
namespace {

bool isWhiteSpace(CodePoint point) {
    return point.length == 1 && isWhitespaceOrNewline(static_cast<char16_t>(point.value));
}

}  // namespace

String stringByExpandingJoinedCapitalizedWords(StringView text) {
    const CharacterSet& uppercase = CharacterSet::uppercaseLetters();
    String result;
    bool awaitsFirstLetter = true;
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = codePointAt(text, at);
        const bool isExpanded = at > 0 && uppercase.contains(point.value);
        if (isExpanded) result.push_back(u' ');
        if (isExpanded || isWhiteSpace(point)) awaitsFirstLetter = true;
        if (awaitsFirstLetter && isLetter(point.value)) {
            result.append(capitalized(point.value));
            awaitsFirstLetter = false;
        } else {
            appendCodePoint(result, lowercased(point.value));
        }
        at += point.length;
    }
    return result;
}

}  // namespace QZCore
