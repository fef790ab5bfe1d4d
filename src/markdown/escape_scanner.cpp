#include "markdown/escape_scanner.h"

#include <array>

#include "foundation/unit_search.h"
#include "markdown/row_scanners.h"

namespace QZCore {
namespace {

constexpr auto kEscapable = [] {
    std::array<bool, 0x80> table{};
    for (const char16_t unit : StringView(u"\\`*_()[]#+-!")) table[unit] = true;
    return table;
}();

bool isEscapable(char16_t unit) { return unit < kEscapable.size() && kEscapable[unit]; }

}  // namespace

std::size_t findEscape(StringView text, std::size_t from) {
    while ((from = findUnit(text, from, u'\\')) + 1 < text.size()) {
        if (isEscapable(text[from + 1])) return from;
        ++from;
    }
    return text.size();
}

StringView coverEscapes(StringView text, String& copy) {
    std::size_t at = findEscape(text, 0);
    if (at == text.size()) return text;
    copy = text;
    for (; at < text.size(); at = findEscape(text, at + kEscapeLength)) {
        copy[at] = copy[at + 1] = u'@';
    }
    return copy;
}

void scanEscapes(StringView text, MatchSink& sink) {
    for (std::size_t at = findEscape(text, 0); at < text.size();
         at = findEscape(text, at + kEscapeLength)) {
        const SpanMatch::Span whole = spanOf(at, at + kEscapeLength);
        if (!sink.add({whole, {whole}})) return;
    }
}

}  // namespace QZCore
