// Short codes of emoji between colons.
#include "foundation/unit_search.h"
#include "markdown/row_scanners.h"

namespace QZCore {

namespace {

// Letters count without their case, and so do the two letters beyond ASCII whose
// other case lies in it: the long s and the Kelvin sign.
bool isCodeUnit(char16_t unit) {
    const int lower = unit | 0x20;
    return (unit < 0x80 && lower >= u'a' && lower <= u'z') || (unit >= u'0' && unit <= u'9') ||
           unit == u'-' || unit == u'+' || unit == u'_' || unit == 0x17F || unit == 0x212A;
}

}  // namespace

void scanEmoji(StringView text, MatchSink& sink) {
    std::size_t position = 0;
    while ((position = findUnit(text, position, u':')) < text.size()) {
        const std::size_t code = position + 1;
        std::size_t end = code;
        while (end < text.size() && isCodeUnit(text[end])) ++end;
        const bool closes = end > code && end < text.size() && text[end] == u':';
        if (closes && !sink.add({spanOf(position, end + 1), {spanOf(code, end)}})) return;
        position = closes ? end + 1 : end;
    }
}

}  // namespace QZCore
