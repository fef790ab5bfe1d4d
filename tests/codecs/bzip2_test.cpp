#include "QZCore/codecs/bzip2.h"

#include <algorithm>

#include "support/bytes.h"
#include "support/log_capture.h"
#include "support/printing.h"

namespace QZCore {
namespace {

// The bytes that reading adds at a time.
constexpr std::size_t kChunk = 10'240;

bool startsWith(const Data& data, const Data& start) {
    return start.size() <= data.size() &&
           std::ranges::equal(start, std::span(data).first(start.size()));
}

}  // namespace

TEST_CASE("compressed data come back, at every length around a chunk") {
    const Data bytes = testing::randomBytes(3 * kChunk, 3);
    for (const std::size_t length : {std::size_t{1}, kChunk - 1, kChunk, kChunk + 1, 3 * kChunk}) {
        CAPTURE(length);
        const Data data(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
        const Data compressed = compressBZip2(data);
        CHECK(textOf(compressed).starts_with("BZh5"));
        CHECK(dataWithBZip2Data(compressed) == data);
        CHECK(dataWithBZip2Data(compressed, length) == data);
        CHECK_FALSE(dataWithBZip2Data(compressed, length - 1));
        Data followed = compressed;
        followed.insert(followed.end(), compressed.begin(), compressed.end());
        CHECK(dataWithBZip2Data(followed) == data);
    }
    CHECK(compressBZip2({}).empty());
    CHECK_FALSE(dataWithBZip2Data(DataView{}));
    CHECK_FALSE(dataWithBZip2Data(std::nullopt));
}

TEST_CASE("a stream that is cut or damaged gives the blocks before, and no chunk with a fault") {
    const Data data = testing::randomBytes(600'000, 4);  // a block and some more
    const Data compressed = compressBZip2(data);
    constexpr std::size_t kStep = 29'989;
    for (std::size_t length = 1; length < compressed.size(); length += kStep) {
        CAPTURE(length);
        const auto cut = dataWithBZip2Data(DataView(compressed).first(length));
        REQUIRE(cut);
        CHECK(startsWith(data, *cut));
        const bool hasBlock = length >= 505'000;
        CHECK(cut->empty() == !hasBlock);
        Data damaged = compressed;
        damaged[length] = static_cast<std::uint8_t>(~damaged[length]);
        const auto read = dataWithBZip2Data(damaged);
        REQUIRE(read);
        CHECK(read->size() % kChunk == 0);
        const auto sound = static_cast<std::ptrdiff_t>(hasBlock ? 499'000 : 0);
        CHECK(startsWith(*read, Data(data.begin(), data.begin() + sound)));
    }
    CHECK(dataWithBZip2Data(bytesOf("no stream")) == Data{});
    CHECK(dataWithBZip2Data(bytesOf("BZh9")) == Data{});
}

TEST_CASE("an error of the library is logged and gives empty data") {
    const testing::LogCapture log;
    const std::uint8_t byte = 0;  // the rest of what is too long is not looked at
    CHECK(compressBZip2(DataView(&byte, UINT32_MAX)).empty());
    CHECK(log.lines() == std::vector<String>{u"-[NSData compressBZip2]: error -2 returned"});
}

TEST_CASE("every bit of a small stream can change, and reading ends") {
    const Data compressed = compressBZip2(testing::randomBytes(60, 5));
    testing::withEachBitFlipped(compressed, [](std::size_t bit, const Data& flipped) {
        CAPTURE(bit);
        REQUIRE(dataWithBZip2Data(flipped, 100'000).has_value());
    });
}

TEST_CASE("a few bytes that stand for very many are read up to the limit") {
    const Data zeros(50'000'000);
    const Data bomb = compressBZip2(zeros);
    CHECK(bomb.size() < 200);
    CHECK_FALSE(dataWithBZip2Data(bomb, 1'000'000));
}

}  // namespace QZCore
