#include "QZCore/codecs/checksums.h"
#include "codecs/little_endian.h"

namespace QZCore {
namespace {

constexpr std::uint32_t kGoldenRatio = 0x9E3779B9;
constexpr std::size_t kBlockLength = 12;

struct State {
    std::uint32_t a = kGoldenRatio;
    std::uint32_t b = kGoldenRatio;
    std::uint32_t c = 0;

    /// Spreads every bit of the state over all of `c`.
    void mix() {
        // clang-format off
        a -= b; a -= c; a ^= c >> 13;
        b -= c; b -= a; b ^= a << 8;
        c -= a; c -= b; c ^= b >> 13;
        a -= b; a -= c; a ^= c >> 12;
        b -= c; b -= a; b ^= a << 16;
        c -= a; c -= b; c ^= b >> 5;
        a -= b; a -= c; a ^= c >> 3;
        b -= c; b -= a; b ^= a << 10;
        c -= a; c -= b; c ^= b >> 15;
        // clang-format on
    }

    /// Adds the bytes that fill no block. The lowest byte of `c` is the
    /// length's, so what would be the ninth byte stands in its second.
    void addTail(DataView tail) {
        for (std::size_t i = 0; i < tail.size(); ++i) {
            std::uint32_t& word = i < 4 ? a : i < 8 ? b : c;
            const std::size_t place = i < 8 ? i % 4 : i - 7;
            word += std::uint32_t{tail[i]} << (8 * place);
        }
    }
};

}  // namespace

std::uint32_t jenkinsHash(DataView data) {
    State state;
    DataView rest = data;
    for (; rest.size() >= kBlockLength; rest = rest.subspan(kBlockLength)) {
        state.a += littleEndian32(rest.data());
        state.b += littleEndian32(rest.data() + 4);
        state.c += littleEndian32(rest.data() + 8);
        state.mix();
    }
    state.c += static_cast<std::uint32_t>(data.size());
    state.addTail(rest);
    state.mix();
    return state.c;
}

std::uint32_t jenkinsHash(const std::uint8_t* bytes, std::uint32_t length) {
    return jenkinsHash(DataView(bytes, bytes == nullptr ? 0 : length));
}

}  // namespace QZCore
