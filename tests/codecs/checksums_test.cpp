#include "QZCore/codecs/checksums.h"

#include <doctest/doctest.h>

#include "codecs/crc.h"
#include "support/bytes.h"

namespace QZCore {
namespace {

/// One bit after the other.
std::uint32_t slowCrc(std::uint32_t crc, DataView data) {
    for (const std::uint8_t byte : data) {
        crc ^= byte;
        for (int i = 0; i < 8; ++i) crc = crc >> 1 ^ (crc & 1) * 0xEDB88320;
    }
    return crc;
}

}  // namespace

TEST_CASE("every way to a CRC-32 leads to the same") {
    CHECK(crc32(bytesOf("123456789")) == 0xCBF43926);  // the published check value
    CHECK(crc32({}) == 0);
    const Data bytes = testing::randomBytes(400, 1);
    std::uint32_t crc = 0x12345678;
    for (std::size_t length = 0; length < 390; ++length) {
        CAPTURE(length);
        const DataView data = DataView(bytes).subspan(length % 10, length);
        const std::uint32_t expected = slowCrc(crc, data);
        REQUIRE(update_crc(crc, data.data(), static_cast<std::int32_t>(length)) == expected);
        REQUIRE(updatedCrcByTables(crc, data) == expected);
        if (canFoldCrc() && length >= 64) REQUIRE(updatedCrcByFolding(crc, data) == expected);
        crc = expected;
    }
    CHECK(update_crc(crc, bytes.data(), -1) == crc);
    CHECK(update_crc(crc, nullptr, 5) == crc);
    make_crc_table();
    for (std::uint32_t i = 0; i < 256; ++i) {
        const Data byte{static_cast<std::uint8_t>(i)};
        REQUIRE(crc_table[i] == slowCrc(0, byte));
    }
}

TEST_CASE("the hash takes blocks of twelve bytes and what is left") {
    struct Row {
        std::string_view bytes;
        std::uint32_t hash;
    };
    // Worked out by a transcript of the published code.
    const Row rows[] = {{"", 0xBD49D10D},
                        {"A", 0xA1614B4D},
                        {"A no", 0xB4CBFBF8},
                        {"A note w", 0xD370188C},
                        {"A note wi", 0x0F2FA913},
                        {"A note with", 0x3991AE34},
                        {"A note with ", 0xF83B7587},
                        {"A note with a", 0xEB841291},
                        {"A note with a figure and", 0x8324117D},
                        {"A note with a figure and a line", 0x6B216AB2}};
    for (const Row& row : rows) {
        CAPTURE(row.bytes);
        const DataView data = bytesOf(row.bytes);
        CHECK(jenkinsHash(data) == row.hash);
        CHECK(jenkinsHash(data.data(), static_cast<std::uint32_t>(data.size())) == row.hash);
    }
    CHECK(jenkinsHash(nullptr, 3) == jenkinsHash(DataView{}));
}

TEST_CASE("one-byte checksums combine the four bytes") {
    CHECK(compute1ByteChecksumViaCRC32(bytesOf("123456789")) == (0xCB ^ 0xF4 ^ 0x39 ^ 0x26));
    CHECK(compute1ByteChecksumViaJenkins({}) == (0xBD ^ 0x49 ^ 0xD1 ^ 0x0D));
}

}  // namespace QZCore
