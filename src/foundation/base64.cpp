#include "foundation/base64.h"

#include <algorithm>
#include <array>

namespace QZCore {
namespace {

constexpr std::string_view kSymbols =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

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

}  // namespace

void appendBase64(std::string& text, DataView bytes) {
    text.reserve(text.size() + (bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::size_t count = std::min<std::size_t>(bytes.size() - at, 3);
        std::uint32_t group = 0;
        for (std::size_t i = 0; i < 3; ++i) group = group << 8 | (i < count ? bytes[at + i] : 0U);
        std::array<char, 4> symbols{'=', '=', '=', '='};
        for (std::size_t i = 0; i <= count; ++i) symbols[i] = kSymbols[group >> (18 - 6 * i) & 63];
        text.append(symbols.data(), symbols.size());
    }
}

std::optional<Data> base64Decoded(std::string_view text) {
    Data bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t group = 0;
    std::size_t symbols = 0;
    std::size_t padding = 0;
    for (const char character : text) {
        const std::uint8_t meaning = kMeanings[static_cast<std::uint8_t>(character)];
        if (meaning == kBlank) continue;
        if (meaning == kPadding) {
            ++padding;
            continue;
        }
        if (meaning == kForeign || padding > 0) return std::nullopt;
        group = group << 6 | meaning;
        if (++symbols % 4 != 0) continue;
        for (const int shift : {16, 8, 0})
            bytes.push_back(static_cast<std::uint8_t>(group >> shift));
        group = 0;
    }
    const std::size_t left = symbols % 4;
    if (left == 1 || padding != (left == 0 ? 0 : 4 - left)) return std::nullopt;
    if (left >= 2) bytes.push_back(static_cast<std::uint8_t>(group >> (left == 2 ? 4 : 10)));
    if (left == 3) bytes.push_back(static_cast<std::uint8_t>(group >> 2));
    return bytes;
}

}  // namespace QZCore
