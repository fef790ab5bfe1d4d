#include <algorithm>
#include <array>
#include <cstring>

#include "QZCore/codecs/binary_text.h"
#include "codecs/base32_form.h"

namespace QZCore {
namespace {

constexpr std::uint8_t kForeign = 0x80;

/// The values of the symbols; `kForeign` for all other units of ASCII.
constexpr auto kValues = [] {
    std::array<std::uint8_t, 128> values{};
    values.fill(kForeign);
    for (std::uint8_t value = 0; value < kBase32Alphabet.size(); ++value)
        values[kBase32Alphabet[value]] = value;
    return values;
}();

bool isAscii(char16_t unit) { return unit < kValues.size(); }

std::uint8_t valueOf(char16_t unit) { return isAscii(unit) ? kValues[unit] : kForeign; }

/// The values of two symbols as ten bits; `kNoPair` where one of the two is no
/// symbol. Found by the first and twice seven bits.
constexpr std::uint16_t kNoPair = 0x8000;
constexpr auto kPairValues = [] {
    std::array<std::uint16_t, 128 * 128> pairs{};
    for (std::size_t index = 0; index < pairs.size(); ++index) {
        const std::uint8_t first = kValues[index / 128];
        const std::uint8_t second = kValues[index % 128];
        const bool both = first != kForeign && second != kForeign;
        pairs[index] = both ? static_cast<std::uint16_t>(first << 5 | second) : kNoPair;
    }
    return pairs;
}();

/// The value of the pair at `units`, whose bits beyond ASCII do not count.
std::uint64_t pairAt(const char16_t* units) {
    return kPairValues[(units[0] & 127U) << 7 | (units[1] & 127U)];
}

/// The bits of the next eight symbols; nothing when another unit is among them.
std::optional<std::uint64_t> groupAt(const char16_t* units) {
    std::array<std::uint64_t, 2> words;
    std::memcpy(words.data(), units, sizeof words);
    const std::uint64_t a = pairAt(units);
    const std::uint64_t b = pairAt(units + 2);
    const std::uint64_t c = pairAt(units + 4);
    const std::uint64_t d = pairAt(units + 6);
    constexpr std::uint64_t kBeyondAscii = 0xFF80FF80FF80FF80;
    if (((words[0] | words[1]) & kBeyondAscii) != 0 || (a | b | c | d) >= kNoPair)
        return std::nullopt;
    return a << 30 | b << 20 | c << 10 | d;
}

/// The bytes of 40 bits.
std::array<std::uint8_t, kBase32BytesInGroup> bytesOf(std::uint64_t bits) {
    const auto byteAt = [bits](int shift) { return static_cast<std::uint8_t>(bits >> shift); };
    return {byteAt(32), byteAt(24), byteAt(16), byteAt(8), byteAt(0)};
}

/// The bytes that `count` characters have room for.
std::size_t roomFor(std::size_t count) {
    const std::size_t rest = count % kBase32SymbolsInGroup;
    return count / kBase32SymbolsInGroup * kBase32BytesInGroup + rest * kBase32BitsInSymbol / 8;
}

Data decoded(StringView text) {
    Data bytes(roomFor(text.size()));
    std::uint8_t* out = bytes.data();
    std::uint64_t bits = 0;
    std::size_t symbols = 0;
    std::size_t beyondAscii = 0;
    for (std::size_t at = 0; at < text.size();) {
        const bool mayBeGroup = symbols == 0 && text.size() - at >= kBase32SymbolsInGroup;
        if (const auto group = mayBeGroup ? groupAt(&text[at]) : std::nullopt) {
            out = std::ranges::copy(bytesOf(*group), out).out;
            at += kBase32SymbolsInGroup;
            continue;
        }
        const char16_t unit = text[at++];
        if (!isAscii(unit)) ++beyondAscii;
        const std::uint8_t value = valueOf(unit);
        if (value == kForeign) continue;
        bits = bits << kBase32BitsInSymbol | value;
        if (++symbols < kBase32SymbolsInGroup) continue;
        out = std::ranges::copy(bytesOf(bits), out).out;
        bits = symbols = 0;
    }

    // What is no character of ASCII has made no room.
    bytes.resize(roomFor(text.size() - beyondAscii));
    const auto room = static_cast<std::size_t>(bytes.data() + bytes.size() - out);
    bits <<= kBase32BitsInSymbol * (kBase32SymbolsInGroup - symbols);
    std::copy_n(bytesOf(bits).begin(), std::min(room, kBase32BytesInGroup), out);
    return bytes;
}

}  // namespace

std::optional<Data> dataWithBase32String(std::optional<StringView> base32String) {
    if (!base32String) return std::nullopt;
    return decoded(*base32String);
}

bool initWithBase32String(Data& data, std::optional<StringView> base32String) {
    if (!base32String) return false;
    data = decoded(*base32String);
    return true;
}

}  // namespace QZCore
