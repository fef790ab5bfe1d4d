#include "QZCore/codecs/checksums.h"

#include "codecs/crc.h"

namespace QZCore {
namespace {

std::uint8_t foldedToByte(std::uint32_t value) {
    return static_cast<std::uint8_t>(value ^ value >> 8 ^ value >> 16 ^ value >> 24);
}

}  // namespace

std::uint32_t crc32(DataView data) { return ~updatedCrc(~std::uint32_t{0}, data); }

std::uint8_t compute1ByteChecksumViaJenkins(DataView data) {
    return foldedToByte(jenkinsHash(data));
}

std::uint8_t compute1ByteChecksumViaCRC32(DataView data) { return foldedToByte(crc32(data)); }

}  // namespace QZCore
