#include "foundation/base64.h"

#include <algorithm>
#include <array>

namespace QZCore {
namespace {

constexpr std::string_view kSymbols =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::string_view kUrlSafeSymbols =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

/// The two symbols of each value of twelve bits.
template <class Unit>
using SymbolPairs = std::array<std::array<Unit, 2>, 4096>;

template <class Unit>
constexpr SymbolPairs<Unit> pairsOf(std::string_view symbols) {
    SymbolPairs<Unit> pairs{};
    for (std::size_t value = 0; value < pairs.size(); ++value) {
        pairs[value] = {static_cast<Unit>(symbols[value / 64]),
                        static_cast<Unit>(symbols[value % 64])};
    }
    return pairs;
}

constexpr auto kPairs = pairsOf<char>(kSymbols);
constexpr auto kUrlSafePairs = pairsOf<char16_t>(kUrlSafeSymbols);

/// The bits of three bytes.
std::uint32_t bitsOf(const std::uint8_t* bytes) {
    return std::uint32_t{bytes[0]} << 16 | std::uint32_t{bytes[1]} << 8 | bytes[2];
}

template <class Unit>
void putGroup(Unit* out, const SymbolPairs<Unit>& pairs, std::uint32_t bits) {
    std::ranges::copy(pairs[bits >> 12], out);
    std::ranges::copy(pairs[bits & 4095], out + 2);
}

/// Writes all symbols of `bytes` and no padding.
template <class Unit>
void putSymbols(Unit* out, const SymbolPairs<Unit>& pairs, DataView bytes) {
    for (; bytes.size() >= 3; bytes = bytes.subspan(3), out += 4)
        putGroup(out, pairs, bitsOf(bytes.data()));
    if (bytes.empty()) return;
    std::array<std::uint8_t, 3> filledUp{};
    std::ranges::copy(bytes, filledUp.begin());
    std::array<Unit, 4> last;
    putGroup(last.data(), pairs, bitsOf(filledUp.data()));
    std::copy_n(last.begin(), bytes.size() + 1, out);
}

// What a character means beside the values 0 to 63.
constexpr std::uint8_t kPadding = 64;
constexpr std::uint8_t kBlank = 65;
constexpr std::uint8_t kForeign = 66;

constexpr std::array<std::uint8_t, 256> kMeanings = [] {
    std::array<std::uint8_t, 256> meanings{};
    meanings.fill(kForeign);
    for (std::size_t i = 0; i < kSymbols.size(); ++i) {
        meanings[static_cast<std::uint8_t>(kSymbols[i])] = static_cast<std::uint8_t>(i);
    }
    for (const char blank : {' ', '\t', '\n', '\r'}) {
        meanings[static_cast<std::uint8_t>(blank)] = kBlank;
    }
    meanings['='] = kPadding;
    return meanings;
}();

std::uint8_t meaningOf(char character) { return kMeanings[static_cast<std::uint8_t>(character)]; }

std::uint8_t* putByte(std::uint8_t* out, std::uint32_t byte) {
    *out = static_cast<std::uint8_t>(byte);
    return out + 1;
}

std::uint8_t* putBytes(std::uint8_t* out, std::uint32_t bits) {
    return putByte(putByte(putByte(out, bits >> 16), bits >> 8), bits);
}

/// Writes the bytes of whole groups of symbols, up to the first group that
/// holds another character, and returns how many characters they are.
std::size_t decodeGroups(std::string_view text, std::uint8_t*& out) {
    std::size_t at = 0;
    for (; text.size() - at >= 4; at += 4) {
        const std::uint32_t a = meaningOf(text[at]);
        const std::uint32_t b = meaningOf(text[at + 1]);
        const std::uint32_t c = meaningOf(text[at + 2]);
        const std::uint32_t d = meaningOf(text[at + 3]);
        if ((a | b | c | d) >= kPadding) break;
        out = putBytes(out, a << 18 | b << 12 | c << 6 | d);
    }
    return at;
}

}  // namespace

void appendBase64(std::string& text, DataView bytes) {
    const std::size_t at = text.size();
    text.resize(at + (bytes.size() + 2) / 3 * 4, '=');
    putSymbols(text.data() + at, kPairs, bytes);
}

String urlSafeBase64Of(DataView bytes) {
    String text(bytes.size() / 3 * 4 + (bytes.size() % 3 * 4 + 2) / 3, u'\0');
    putSymbols(text.data(), kUrlSafePairs, bytes);
    return text;
}

std::optional<Data> base64Decoded(std::string_view text) {
    Data bytes(text.size() / 4 * 3 + 2);
    std::uint8_t* out = bytes.data();
    std::uint32_t group = 0;
    std::size_t symbols = 0;
    std::size_t padding = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (symbols % 4 == 0 && padding == 0) at += decodeGroups(text.substr(at), out);
        if (at == text.size()) break;
        const std::uint8_t meaning = meaningOf(text[at]);
        if (meaning < kPadding) {
            if (padding > 0) return std::nullopt;
            group = group << 6 | meaning;
            if (++symbols % 4 == 0) out = putBytes(out, group);
        } else if (meaning == kPadding) {
            ++padding;
        } else if (meaning == kForeign) {
            return std::nullopt;
        }
    }
    const std::size_t left = symbols % 4;
    if (left == 1 || padding != (left == 0 ? 0 : 4 - left)) return std::nullopt;
    if (left >= 2) out = putByte(out, group >> (left == 2 ? 4 : 10));
    if (left == 3) out = putByte(out, group >> 2);
    bytes.resize(static_cast<std::size_t>(out - bytes.data()));
    return bytes;
}

}  // namespace QZCore
