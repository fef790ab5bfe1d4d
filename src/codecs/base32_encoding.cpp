#include <algorithm>
#include <array>

#include "QZCore/codecs/binary_text.h"
#include "codecs/base32_form.h"

namespace QZCore {
namespace {

using SymbolPair = std::array<char16_t, 2>;

/// The two symbols of each value of ten bits.
constexpr auto kPairs = [] {
    std::array<SymbolPair, 1024> pairs{};
    for (std::size_t value = 0; value < pairs.size(); ++value)
        pairs[value] = {kBase32Alphabet[value / 32], kBase32Alphabet[value % 32]};
    return pairs;
}();

/// The bits of five bytes.
std::uint64_t bitsOf(const std::uint8_t* bytes) {
    return std::uint64_t{bytes[0]} << 32 | std::uint64_t{bytes[1]} << 24 |
           std::uint64_t{bytes[2]} << 16 | std::uint64_t{bytes[3]} << 8 | bytes[4];
}

void putPair(char16_t* out, std::uint64_t value) { std::ranges::copy(kPairs[value & 1023], out); }

void putGroup(char16_t* out, std::uint64_t bits) {
    putPair(out, bits >> 30);
    putPair(out + 2, bits >> 20);
    putPair(out + 4, bits >> 10);
    putPair(out + 6, bits);
}

std::size_t symbolsFor(std::size_t bytesInGroup) {
    return (bytesInGroup * 8 + kBase32BitsInSymbol - 1) / kBase32BitsInSymbol;
}

}  // namespace

String base32String(DataView data) {
    const std::size_t groups = data.size() / kBase32BytesInGroup;
    const DataView rest = data.subspan(groups * kBase32BytesInGroup);
    const std::size_t symbolsOfRest = symbolsFor(rest.size());
    String text(groups * kBase32SymbolsInGroup + symbolsOfRest, u'\0');
    char16_t* out = text.data();
    const std::uint8_t* bytes = data.data();
    for (std::size_t i = 0; i < groups; ++i) {
        putGroup(out, bitsOf(bytes));
        out += kBase32SymbolsInGroup;
        bytes += kBase32BytesInGroup;
    }

    std::array<std::uint8_t, kBase32BytesInGroup> filledUp{};
    std::ranges::copy(rest, filledUp.begin());
    std::array<char16_t, kBase32SymbolsInGroup> symbols;
    putGroup(symbols.data(), bitsOf(filledUp.data()));
    std::copy_n(symbols.begin(), symbolsOfRest, out);
    return text;
}

}  // namespace QZCore
