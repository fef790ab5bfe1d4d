// CRC-32 over any number of bytes, in the quickest way that the processor has.
#pragma once

#include <cstdint>

#include "QZCore/foundation/data.h"

namespace QZCore {

/// The polynomial without its highest power, reflected: x^31 in the lowest bit.
inline constexpr std::uint32_t kCrcPolynomial = 0xEDB88320;

/// The running `crc` with `data` taken in.
[[nodiscard]] std::uint32_t updatedCrc(std::uint32_t crc, DataView data);

/// The same by tables, on any processor.
[[nodiscard]] std::uint32_t updatedCrcByTables(std::uint32_t crc, DataView data);

/// Whether the processor multiplies without carries, as `updatedCrcByFolding`
/// needs it.
[[nodiscard]] bool canFoldCrc();

/// The same by folding. `data` has at least 64 bytes.
[[nodiscard]] std::uint32_t updatedCrcByFolding(std::uint32_t crc, DataView data);

}  // namespace QZCore
