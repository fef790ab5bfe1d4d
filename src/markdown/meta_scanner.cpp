// Tags and mentions.
#include "foundation/unit_search.h"
#include "markdown/row_scanners.h"
#include "platform/characters.h"

namespace QZCore {

namespace {

std::size_t endOfWord(StringView text, std::size_t index) {
    while (index < text.size()) {
        const CodePoint next = codePointAt(text, index);
        if (!isWordCharacter(next.value)) break;
        index += next.length;
    }
    return index;
}

bool isSeparator(char16_t unit) {
    return unit == u'-' || unit == u'.' || unit == u'=' || unit == u'/';
}

// The end of the name that starts at `start`: two words with a separator, or one
// word of two characters and more; `start` when there is neither.
std::size_t endOfName(StringView text, std::size_t start) {
    const std::size_t end = endOfWord(text, start);
    if (end == start) return start;
    if (end < text.size() && isSeparator(text[end])) {
        const std::size_t second = endOfWord(text, end + 1);
        if (second > end + 1) return second;
    }
    return end - start > codePointAt(text, start).length ? end : start;
}

// Where a match whose sign stands at `sign` starts: at the start of the text, or
// at the white space before the sign. White space at the start of the text does
// not count: there, the expression has settled for the start itself.
bool startsMeta(StringView text, std::size_t sign) {
    return sign == 0 || (sign >= 2 && isWhitespaceOrNewline(text[sign - 1]));
}

}  // namespace

void scanInlineMeta(StringView text, MatchSink& sink) {
    std::size_t position = 0;
    while ((position = findEither(text, position, u'#', u'@')) < text.size()) {
        const std::size_t sign = position++;
        if (!startsMeta(text, sign)) continue;
        const std::size_t end = endOfName(text, sign + 1);
        if (end == sign + 1) continue;
        const std::size_t start = sign == 0 ? 0 : sign - 1;
        if (!sink.add({spanOf(start, end), {spanOf(sign, end)}})) return;
        position = end;
    }
}

}  // namespace QZCore
