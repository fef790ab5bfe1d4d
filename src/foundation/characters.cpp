#include "QZCore/foundation/text.h"

namespace QZCore {

bool isWhitespace(char16_t unit) {
    if (unit == u' ' || unit == u'\t') return true;
    if (unit < 0xA0) return false;
    return unit == 0xA0 || unit == 0x1680 || (unit >= 0x2000 && unit <= 0x200A) || unit == 0x202F ||
           unit == 0x205F || unit == 0x3000;
}

bool isNewline(char16_t unit) {
    return (unit >= u'\n' && unit <= u'\r') || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
}

bool isWhitespaceOrNewline(char16_t unit) { return isWhitespace(unit) || isNewline(unit); }

namespace {

StringView trimmed(StringView text, bool (*isTrimmed)(char16_t)) {
    while (!text.empty() && isTrimmed(text.front())) text.remove_prefix(1);
    while (!text.empty() && isTrimmed(text.back())) text.remove_suffix(1);
    return text;
}

char16_t lowerAscii(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
}

}  // namespace

StringView trimmedOfWhitespaceAndNewlines(StringView text) {
    return trimmed(text, isWhitespaceOrNewline);
}

StringView trimmedOfWhitespace(StringView text) { return trimmed(text, isWhitespace); }

bool equalsIgnoringAsciiCase(StringView text, StringView word) {
    if (text.size() != word.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (lowerAscii(text[i]) != lowerAscii(word[i])) return false;
    }
    return true;
}

}  // namespace QZCore
