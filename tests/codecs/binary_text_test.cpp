#include "QZCore/codecs/binary_text.h"

#include "support/bytes.h"
#include "support/printing.h"
#include "support/random_texts.h"

namespace QZCore {
namespace {

constexpr StringView kAlphabet = u"23456789ABCDEFGHJKLMNPQRSTUVWXYZ";

/// The reading rule, one bit after the other.
Data slowlyDecoded(StringView text) {
    std::size_t count = 0;
    std::vector<bool> bits;
    for (const char16_t unit : text) {
        if (unit < 0x80) ++count;
        const std::size_t value = kAlphabet.find(unit);
        for (int i = 4; i >= 0 && value != StringView::npos; --i) bits.push_back(value >> i & 1);
    }
    Data bytes(count * 5 / 8);
    for (std::size_t i = 0; i < bits.size() && i / 8 < bytes.size(); ++i)
        if (bits[i]) bytes[i / 8] = static_cast<std::uint8_t>(bytes[i / 8] | 0x80 >> i % 8);
    return bytes;
}

}  // namespace

TEST_CASE("base32 has these symbols") {
    CHECK(base32String({}).empty());
    CHECK(base32String(testing::fromHex(u"ff")) == u"ZW");
    CHECK(base32String(testing::fromHex(u"00443214c74254b635cf84653a56d7c675be77df")) == kAlphabet);
    CHECK(dataWithBase32String(u"ZW") == testing::fromHex(u"ff"));
    CHECK(dataWithBase32String(u"") == Data{});
    CHECK_FALSE(dataWithBase32String(std::nullopt));
    Data data{1};
    CHECK_FALSE(initWithBase32String(data, std::nullopt));
    CHECK(data == Data{1});
    CHECK(initWithBase32String(data, u"ZW"));
    CHECK(data == Data{0xFF});
}

TEST_CASE("bytes of every length come back from base32") {
    for (std::size_t length = 0; length < 100; ++length) {
        const Data bytes = testing::randomBytes(length, 2);
        const String text = base32String(bytes);
        REQUIRE(text.size() == (length * 8 + 4) / 5);
        REQUIRE(dataWithBase32String(text) == bytes);
    }
}

TEST_CASE("other characters make room in base32 and hold no bits") {
    testing::RandomTexts mixed(u"2A9ZIO01ab= \u00E9\uFF12\u0132");
    testing::RandomTexts symbols(kAlphabet);
    for (int i = 0; i < 3'000; ++i) {
        const String text = symbols.next(30) + mixed.next(6) + symbols.next(30);
        REQUIRE(dataWithBase32String(text) == slowlyDecoded(text));
    }
}

TEST_CASE("URL-safe base64 has two symbols of its own and no padding") {
    CHECK(urlSafeBase64({}).empty());
    CHECK(urlSafeBase64(testing::fromHex(u"fbfffe")) == u"-__-");
    CHECK(urlSafeBase64(bytesOf("f")) == u"Zg");
    CHECK(urlSafeBase64(bytesOf("fo")) == u"Zm8");
    CHECK(urlSafeBase64(bytesOf("foob")) == u"Zm9vYg");
}

}  // namespace QZCore
