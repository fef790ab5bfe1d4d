// A backslash and the character that it takes the meaning from.
#include "markdown/row_scanners.h"
#include "markdown/unit_search.h"

namespace QZCore {

void scanEscapes(StringView text, MatchSink& sink) {
    constexpr StringView kEscapable = u"\\`*_()[]#+-!";
    std::size_t position = 0;
    while ((position = findUnit(text, position, u'\\')) + 1 < text.size()) {
        if (kEscapable.find(text[position + 1]) == StringView::npos) {
            ++position;
            continue;
        }
        const SpanMatch::Span whole = spanOf(position, position + 2);
        if (!sink.add({whole, {whole}})) return;
        position += 2;
    }
}

}  // namespace QZCore
