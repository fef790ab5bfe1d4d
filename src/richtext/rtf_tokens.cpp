#include "richtext/rtf_tokens.h"

#include <algorithm>
#include <charconv>

#include "foundation/hexadecimal.h"

namespace QZCore {
namespace {

using Kind = RtfToken::Kind;

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isText(char c) { return c != '\\' && c != '{' && c != '}' && c != '\n' && c != '\r'; }
bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

/// The length of the start of `text` whose characters are all as asked for.
template <class Predicate>
std::size_t lengthOf(std::string_view text, Predicate predicate) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), predicate) -
                                    text.begin());
}

}  // namespace

std::string_view RtfTokenizer::take(std::size_t length) {
    const std::string_view taken = rest_.substr(0, length);
    rest_.remove_prefix(taken.size());
    return taken;
}

RtfToken RtfTokenizer::next() {
    take(lengthOf(rest_, isLineEnd));
    if (rest_.empty()) return {};
    switch (rest_.front()) {
        case '{':
            return {.kind = Kind::GroupStart, .text = take(1)};
        case '}':
            return {.kind = Kind::GroupEnd, .text = take(1)};
        case '\\':
            return afterBackslash();
        default:
            return {.kind = Kind::Text, .text = take(lengthOf(rest_, isText))};
    }
}

RtfToken RtfTokenizer::afterBackslash() {
    take(1);
    if (rest_.empty()) return {};
    if (isLetter(rest_.front())) return word();
    if (rest_.front() == '\'') return hexadecimalByte();
    return {.kind = Kind::Symbol, .text = take(1)};
}

/// Without digits it is a symbol without meaning.
RtfToken RtfTokenizer::hexadecimalByte() {
    RtfToken token{.kind = Kind::Symbol, .text = take(1)};
    for (int digit = 0; digit < 2 && !rest_.empty(); ++digit) {
        const auto value = hexDigitValue(static_cast<unsigned char>(rest_.front()));
        if (!value) break;
        token.kind = Kind::Byte;
        token.number = token.number << 4 | static_cast<std::int32_t>(*value);
        take(1);
    }
    return token;
}

RtfToken RtfTokenizer::word() {
    constexpr std::size_t kLongestName = 32;
    RtfToken token{.kind = Kind::Word,
                   .text = take(lengthOf(rest_.substr(0, kLongestName), isLetter))};
    readNumber(token);
    if (!rest_.empty() && rest_.front() == ' ') take(1);
    return token.text == "bin" ? binary(token.number) : token;
}

RtfToken RtfTokenizer::binary(std::int32_t length) {
    return {.kind = Kind::Binary, .text = take(static_cast<std::size_t>(std::max(length, 0)))};
}

/// A number too large for 32 bits is cut to the largest.
void RtfTokenizer::readNumber(RtfToken& token) {
    const bool isNegative = rest_.starts_with('-');
    const std::size_t digits = lengthOf(rest_.substr(isNegative ? 1 : 0), isDigit);
    if (digits == 0) return;
    const std::string_view number = take(digits + (isNegative ? 1 : 0));
    token.hasNumber = true;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), token.number);
    if (read.ec == std::errc::result_out_of_range)
        token.number = isNegative ? -INT32_MAX : INT32_MAX;
}

}  // namespace QZCore
