#include "platform/long_numbers.h"

#include <string>

#include "platform/characters.h"

namespace QZCore {
namespace {

constexpr std::size_t kDigitsInPiece = 254;

// Each piece begins with a 1, since zeros at a start would not be compared.
constexpr std::size_t kPayload = kDigitsInPiece - 1;

/// The digits at `at` in ASCII, without zeros at the start; moves `at` behind
/// them.
std::string takeDigits(StringView text, std::size_t& at) {
    std::string digits;
    while (at < text.size()) {
        const CodePoint point = codePointAt(text, at);
        const auto digit = decimalDigitValue(point.value);
        if (!digit) break;
        if (*digit > 0 || !digits.empty()) digits.push_back(static_cast<char>('0' + *digit));
        at += point.length;
    }
    return digits;
}

void appendAscii(String& to, std::string_view digits) { to.append(digits.begin(), digits.end()); }

/// A piece with the number of digits, by which a longer number is the larger
/// one, and then the digits in pieces, filled up with zeros.
void appendPieces(String& to, std::string_view digits) {
    const std::string count = std::to_string(digits.size());
    to.push_back(u'1');
    to.append(kPayload - count.size(), u'0');
    appendAscii(to, count);
    for (std::size_t at = 0; at < digits.size(); at += kPayload) {
        const std::string_view payload = digits.substr(at, kPayload);
        to.push_back(u'1');
        appendAscii(to, payload);
        to.append(kPayload - payload.size(), u'0');
    }
}

}  // namespace

std::optional<String> withLongNumbersInPieces(StringView text) {
    if (text.size() <= kPayload) return std::nullopt;
    String result;
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = codePointAt(text, at);
        const std::size_t start = at;
        if (!decimalDigitValue(point.value)) {
            at += point.length;
            result.append(text.substr(start, point.length));
            continue;
        }
        const std::string digits = takeDigits(text, at);
        if (digits.size() > kPayload) {
            appendPieces(result, digits);
        } else {
            result.append(text.substr(start, at - start));
        }
    }
    return result;
}

}  // namespace QZCore
