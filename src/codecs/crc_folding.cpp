// CRC-32 by carry-less multiplication, after Gopal and others, "Fast CRC
// Computation for Generic Polynomials Using PCLMULQDQ Instruction" (2009).
//
// A polynomial over two elements is folded: 128 bits of it that stand n bits
// before others are replaced by 128 bits there which leave the same remainder.
#include "codecs/crc.h"

#ifdef __x86_64__

#include <immintrin.h>

#include <array>

#define QZ_CARRYLESS __attribute__((target("pclmul,sse4.1")))

namespace QZCore {
namespace {

constexpr std::size_t kLaneLength = 16;
constexpr int kLaneCount = 4;
constexpr std::size_t kBlockLength = kLaneLength * kLaneCount;

/// x to the power of `exponent`, modulo the polynomial: with the highest power
/// in the lowest bit, and shifted by one, since the product of two reflected
/// factors has one bit less than its register.
constexpr std::int64_t foldingFactor(int exponent) {
    std::uint32_t remainder = 0x80000000;
    for (int i = 0; i < exponent; ++i)
        remainder = remainder >> 1 ^ ((remainder & 1) != 0 ? kCrcPolynomial : 0);
    return std::int64_t{remainder} << 1;
}

/// The factors that carry a lane over `kLanes` others: of its first half, which
/// is 64 bits further away, and of its second half. The remainder's 32 bits
/// stand at the top of 64.
template <int kLanes>
QZ_CARRYLESS __m128i carryingOver() {
    constexpr int kBits = kLanes * 128;
    constexpr std::int64_t kFirstHalf = foldingFactor(kBits + 32);
    constexpr std::int64_t kSecondHalf = foldingFactor(kBits - 32);
    return _mm_set_epi64x(kSecondHalf, kFirstHalf);
}

/// The bytes of `data` from lane `index` on.
QZ_CARRYLESS __m128i lane(DataView data, std::size_t index) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(data.data() + index * kLaneLength));
}

/// `bits`, carried to where `target` stands.
QZ_CARRYLESS __m128i folded(__m128i bits, __m128i factors, __m128i target) {
    const __m128i first = _mm_clmulepi64_si128(bits, factors, 0x00);
    const __m128i second = _mm_clmulepi64_si128(bits, factors, 0x11);
    return _mm_xor_si128(_mm_xor_si128(first, second), target);
}

}  // namespace

bool canFoldCrc() {
    return __builtin_cpu_supports("pclmul") != 0 && __builtin_cpu_supports("sse4.1") != 0;
}

QZ_CARRYLESS std::uint32_t updatedCrcByFolding(std::uint32_t crc, DataView data) {
    // 1. Four lanes run side by side. The running remainder counts as part of
    //    the first bytes.
    __m128i a = _mm_xor_si128(lane(data, 0), _mm_cvtsi32_si128(static_cast<int>(crc)));
    __m128i b = lane(data, 1);
    __m128i c = lane(data, 2);
    __m128i d = lane(data, 3);
    data = data.subspan(kBlockLength);
    const __m128i overFour = carryingOver<kLaneCount>();
    for (; data.size() >= kBlockLength; data = data.subspan(kBlockLength)) {
        a = folded(a, overFour, lane(data, 0));
        b = folded(b, overFour, lane(data, 1));
        c = folded(c, overFour, lane(data, 2));
        d = folded(d, overFour, lane(data, 3));
    }

    // 2. They become one lane, which takes in what is left by whole lanes.
    const __m128i overOne = carryingOver<1>();
    __m128i whole = folded(folded(folded(a, overOne, b), overOne, c), overOne, d);
    for (; data.size() >= kLaneLength; data = data.subspan(kLaneLength))
        whole = folded(whole, overOne, lane(data, 0));

    // 3. Its bytes leave the same remainder as everything that was folded.
    alignas(__m128i) std::array<std::uint8_t, kLaneLength> bytes;
    _mm_store_si128(reinterpret_cast<__m128i*>(bytes.data()), whole);
    return updatedCrcByTables(updatedCrcByTables(0, bytes), data);
}

}  // namespace QZCore

#else

namespace QZCore {

bool canFoldCrc() { return false; }

std::uint32_t updatedCrcByFolding(std::uint32_t crc, DataView data) {
    return updatedCrcByTables(crc, data);
}

}  // namespace QZCore

#endif
