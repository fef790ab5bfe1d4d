#include "codecs/crc.h"

#include "QZCore/codecs/checksums.h"

namespace QZCore {

std::uint32_t updatedCrc(std::uint32_t crc, DataView data) {
    constexpr std::size_t kWorthFolding = 64;
    static const bool kCanFold = canFoldCrc();
    return kCanFold && data.size() >= kWorthFolding ? updatedCrcByFolding(crc, data)
                                                    : updatedCrcByTables(crc, data);
}

void make_crc_table() {}

std::uint32_t update_crc(std::uint32_t crc, const std::uint8_t* bytes, std::int32_t length) {
    if (bytes == nullptr || length < 1) return crc;
    return updatedCrc(crc, DataView(bytes, static_cast<std::size_t>(length)));
}

}  // namespace QZCore
