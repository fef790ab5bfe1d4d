#include "QZCore/codecs/checksums.h"
#include "codecs/crc.h"
#include "codecs/little_endian.h"

namespace QZCore {
namespace {

using Table = std::array<std::uint32_t, 256>;

constexpr std::size_t kSliceCount = 16;

constexpr Table kFirstTable = [] {
    Table table{};
    for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
        std::uint32_t remainder = byte;
        for (int bit = 0; bit < 8; ++bit)
            remainder = remainder >> 1 ^ ((remainder & 1) != 0 ? kCrcPolynomial : 0);
        table[byte] = remainder;
    }
    return table;
}();

/// In table n the remainder that a byte leaves once n zero bytes have followed.
constexpr std::array<Table, kSliceCount> kSlices = [] {
    std::array<Table, kSliceCount> slices{kFirstTable};
    for (std::size_t slice = 1; slice < kSliceCount; ++slice) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const std::uint32_t before = slices[slice - 1][byte];
            slices[slice][byte] = before >> 8 ^ kFirstTable[before & 0xFF];
        }
    }
    return slices;
}();

/// The remainders of the four bytes of `word`, the last of which `zeros` more
/// bytes follow.
std::uint32_t remainderOf(std::uint32_t word, std::size_t zeros) {
    return (kSlices[zeros + 3][word & 0xFF] ^ kSlices[zeros + 2][word >> 8 & 0xFF]) ^
           (kSlices[zeros + 1][word >> 16 & 0xFF] ^ kSlices[zeros][word >> 24]);
}

}  // namespace

constinit const Table crc_table = kFirstTable;

std::uint32_t updatedCrcByTables(std::uint32_t crc, DataView data) {
    for (; data.size() >= kSliceCount; data = data.subspan(kSliceCount)) {
        const std::uint8_t* bytes = data.data();
        const std::uint32_t later = remainderOf(littleEndian32(bytes + 4), 8) ^
                                    remainderOf(littleEndian32(bytes + 8), 4) ^
                                    remainderOf(littleEndian32(bytes + 12), 0);
        crc = remainderOf(crc ^ littleEndian32(bytes), 12) ^ later;
    }
    for (const std::uint8_t byte : data) crc = crc >> 8 ^ kFirstTable[(crc ^ byte) & 0xFF];
    return crc;
}

}  // namespace QZCore
