// Bytes for tests.
#pragma once

#include <random>

#include "QZCore/foundation/data.h"
#include "foundation/hexadecimal.h"

namespace QZCore::testing {

/// The bytes that hexadecimal digits stand for.
inline Data fromHex(StringView digits) {
    Data bytes;
    for (; digits.size() >= 2; digits.remove_prefix(2)) bytes.push_back(hexByte(digits).value());
    return bytes;
}

/// `length` bytes, the same ones for the same seed.
inline Data randomBytes(std::size_t length, unsigned seed) {
    std::mt19937 random(seed);
    Data bytes(length);
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
    return bytes;
}

/// Every copy of `data` in which one bit is another, one after the other.
template <class Visitor>
void withEachBitFlipped(const Data& data, Visitor visit) {
    for (std::size_t bit = 0; bit < data.size() * 8; ++bit) {
        Data flipped = data;
        flipped[bit / 8] = static_cast<std::uint8_t>(flipped[bit / 8] ^ 1U << bit % 8);
        visit(bit, flipped);
    }
}

}  // namespace QZCore::testing
