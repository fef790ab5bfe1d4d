// Numbers in the order of bytes that has the lowest first.
#pragma once

#include <cstdint>

namespace QZCore {

/// The number in the four bytes at `bytes`.
[[nodiscard]] inline std::uint32_t littleEndian32(const std::uint8_t* bytes) {
    return std::uint32_t{bytes[0]} | std::uint32_t{bytes[1]} << 8 | std::uint32_t{bytes[2]} << 16 |
           std::uint32_t{bytes[3]} << 24;
}

}  // namespace QZCore
