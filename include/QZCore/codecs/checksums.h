// Checksums of bytes: a 32-bit hash, CRC-32, and one byte folded from either.
//
// They find accidents, not intent: whoever wants to can make other bytes with
// the same checksum. All of them may be stored; none will ever change. Every
// function may be called from any thread.
#pragma once

#include <array>
#include <cstdint>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"

namespace QZCore {

QZ_BEGIN_C

/// Bob Jenkins' hash "lookup2" of 1996 with the initial value 0. A null pointer
/// stands for no bytes.
[[nodiscard]] QZ_EXPORT std::uint32_t jenkinsHash(const std::uint8_t* bytes, std::uint32_t length);

/// For each byte, the CRC-32 remainder that it leaves: the polynomial
/// 0xEDB88320, reflected. In C an array of 256 unsigned 32-bit integers.
QZ_EXPORT extern const std::array<std::uint32_t, 256> crc_table;

/// Does nothing, and is there for callers that make the table before they read
/// it: `crc_table` is a constant.
QZ_EXPORT void make_crc_table();

/// Takes `length` bytes into a running CRC-32, which starts as all ones and is
/// inverted at the end. A length below 1 or a null pointer leaves it as it is.
[[nodiscard]] QZ_EXPORT std::uint32_t update_crc(std::uint32_t crc, const std::uint8_t* bytes,
                                                 std::int32_t length);

QZ_END_C

/// `jenkinsHash` of all bytes of `data`; of a length beyond 32 bits the low 32
/// count.
[[nodiscard]] QZ_EXPORT std::uint32_t jenkinsHash(DataView data);

/// The standard CRC-32 of `data`, the one of PNG and zip files.
[[nodiscard]] QZ_EXPORT std::uint32_t crc32(DataView data);

/// The four bytes of `jenkinsHash`, combined by exclusive or.
[[nodiscard]] QZ_EXPORT std::uint8_t compute1ByteChecksumViaJenkins(DataView data);

/// The four bytes of `crc32`, combined by exclusive or.
[[nodiscard]] QZ_EXPORT std::uint8_t compute1ByteChecksumViaCRC32(DataView data);

}  // namespace QZCore
