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
    std::size_t at = text.size();
    text.resize(at + (bytes.size() + 2) / 3 * 4, '=');
    for (; !bytes.empty(); bytes = bytes.subspan(std::min<std::size_t>(bytes.size(), 3))) {
        std::uint32_t group = std::uint32_t{bytes[0]} << 16;
        if (bytes.size() > 1) group |= std::uint32_t{bytes[1]} << 8;
        if (bytes.size() > 2) group |= bytes[2];
        const std::size_t symbols = std::min<std::size_t>(bytes.size(), 3) + 1;
        for (std::size_t i = 0; i < symbols; ++i)
            text[at + i] = kSymbols[group >> (18 - 6 * i) & 63];
        at += 4;
    }
}

std::optional<Data> base64Decoded(std::string_view text) {
    Data bytes(text.size() / 4 * 3 + 2);
    std::uint8_t* out = bytes.data();
    const auto put = [&out](std::uint32_t byte) { *out++ = static_cast<std::uint8_t>(byte); };
    std::uint32_t group = 0;
    std::size_t symbols = 0;
    std::size_t padding = 0;
    for (const char character : text) {
        const std::uint8_t meaning = kMeanings[static_cast<std::uint8_t>(character)];
        if (meaning < kPadding) {
            if (padding > 0) return std::nullopt;
            group = group << 6 | meaning;
            if (++symbols % 4 != 0) continue;
            put(group >> 16);
            put(group >> 8);
            put(group);
        } else if (meaning == kPadding) {
            ++padding;
        } else if (meaning == kForeign) {
            return std::nullopt;
        }
    }
    const std::size_t left = symbols % 4;
    if (left == 1 || padding != (left == 0 ? 0 : 4 - left)) return std::nullopt;
    if (left >= 2) put(group >> (left == 2 ? 4 : 10));
    if (left == 3) put(group >> 2);
    bytes.resize(static_cast<std::size_t>(out - bytes.data()));
    return bytes;
}

}  // namespace QZCore
