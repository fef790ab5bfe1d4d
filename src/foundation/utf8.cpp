#include "QZCore/foundation/text.h"

namespace QZCore {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// What a lead byte announces: how many bytes follow, and the bounds of the
/// first of them, which exclude overlong forms, surrogates and values beyond
/// U+10FFFF (Unicode 15, table 3-7).
struct Lead {
    int followers = 0;
    std::uint8_t low = 0x80;
    std::uint8_t high = 0xBF;
};

Lead leadOf(std::uint8_t byte) {
    if (byte >= 0xC2 && byte <= 0xDF) return {1};
    if (byte == 0xE0) return {2, 0xA0, 0xBF};
    if (byte == 0xED) return {2, 0x80, 0x9F};
    if (byte >= 0xE1 && byte <= 0xEF) return {2};
    if (byte == 0xF0) return {3, 0x90, 0xBF};
    if (byte >= 0xF1 && byte <= 0xF3) return {3};
    if (byte == 0xF4) return {3, 0x80, 0x8F};
    return {};
}

/// The code point behind a byte that is not ASCII; moves `at` behind it, or
/// behind the longest piece that could have become one.
char32_t decodeMultibyte(std::string_view bytes, std::size_t& at) {
    const auto lead = static_cast<std::uint8_t>(bytes[at++]);
    const Lead rule = leadOf(lead);
    if (rule.followers == 0) return kReplacement;
    char32_t value = lead & (0x3FU >> rule.followers);
    for (int i = 0; i < rule.followers; ++i) {
        if (at == bytes.size()) return kReplacement;
        const auto byte = static_cast<std::uint8_t>(bytes[at]);
        const std::uint8_t low = i == 0 ? rule.low : 0x80;
        const std::uint8_t high = i == 0 ? rule.high : 0xBF;
        if (byte < low || byte > high) return kReplacement;
        value = (value << 6) | (byte & 0x3FU);
        ++at;
    }
    return value;
}

constexpr std::size_t unitsFor(char32_t point) { return point < 0x10000 ? 1 : 2; }

constexpr std::size_t bytesFor(char32_t point) {
    return 1U + (point >= 0x80 ? 1U : 0U) + (point >= 0x800 ? 1U : 0U) +
           (point >= 0x10000 ? 1U : 0U);
}

/// Writes a code point as one to four bytes at `out`; returns their end.
char* putUTF8(char* out, char32_t value) {
    const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(byte); };
    if (value < 0x80) {
        put(value);
    } else if (value < 0x800) {
        put(0xC0 | (value >> 6));
        put(0x80 | (value & 0x3F));
    } else if (value < 0x10000) {
        put(0xE0 | (value >> 12));
        put(0x80 | ((value >> 6) & 0x3F));
        put(0x80 | (value & 0x3F));
    } else {
        put(0xF0 | (value >> 18));
        put(0x80 | ((value >> 12) & 0x3F));
        put(0x80 | ((value >> 6) & 0x3F));
        put(0x80 | (value & 0x3F));
    }
    return out;
}

/// Writes a code point as one or two units at `out`; returns their end.
char16_t* putUTF16(char16_t* out, char32_t value) {
    if (value < 0x10000) {
        *out++ = static_cast<char16_t>(value);
        return out;
    }
    const char32_t offset = value - 0x10000;
    *out++ = static_cast<char16_t>(0xD800 + (offset >> 10));
    *out++ = static_cast<char16_t>(0xDC00 + (offset & 0x3FF));
    return out;
}

/// Whether all of `text` is ASCII. Looks at everything, so that many units can
/// be looked at at once.
template <class View>
bool isAscii(View text) {
    unsigned seen = 0;
    for (const auto unit : text) seen |= static_cast<unsigned>(unit);
    return seen < 0x80;
}

/// Calls `take` with every code point that `bytes` hold.
template <class Take>
void forEachIn(std::string_view bytes, Take take) {
    for (std::size_t at = 0; at < bytes.size();) {
        const auto byte = static_cast<std::uint8_t>(bytes[at]);
        if (byte < 0x80) {
            take(char32_t{byte});
            ++at;
        } else {
            take(decodeMultibyte(bytes, at));
        }
    }
}

/// Calls `take` with every code point of `text`.
template <class Take>
void forEachIn(StringView text, Take take) {
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = codePointAt(text, at);
        const bool unpaired = point.value >= 0xD800 && point.value <= 0xDFFF;
        take(unpaired ? kReplacement : point.value);
        at += point.length;
    }
}

}  // namespace

// Both conversions count first: a text is kept for long, in a block of its size.

String fromUTF8(std::string_view bytes) {
    if (isAscii(bytes)) return {bytes.begin(), bytes.end()};
    std::size_t count = 0;
    forEachIn(bytes, [&count](char32_t point) { count += unitsFor(point); });
    String text(count, u'\0');
    forEachIn(bytes, [out = text.data()](char32_t point) mutable { out = putUTF16(out, point); });
    return text;
}

std::string toUTF8(StringView text) {
    if (isAscii(text)) return {text.begin(), text.end()};
    std::size_t count = 0;
    forEachIn(text, [&count](char32_t point) { count += bytesFor(point); });
    std::string bytes(count, '\0');
    forEachIn(text, [out = bytes.data()](char32_t point) mutable { out = putUTF8(out, point); });
    return bytes;
}

CodePoint codePointAt(StringView text, std::size_t index) {
    const char16_t unit = text[index];
    if (!isHighSurrogate(unit) || index + 1 == text.size() || !isLowSurrogate(text[index + 1])) {
        return {unit, 1};
    }
    const char32_t high = unit - 0xD800U;
    const char32_t low = text[index + 1] - 0xDC00U;
    return {0x10000 + (high << 10) + low, 2};
}

void appendCodePoint(String& text, char32_t codePoint) {
    char16_t units[2];
    const char16_t* end = putUTF16(units, codePoint > 0x10FFFF ? kReplacement : codePoint);
    text.append(units, static_cast<std::size_t>(end - units));
}

}  // namespace QZCore
