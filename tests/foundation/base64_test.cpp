#include "foundation/base64.h"

#include "support/printing.h"
#include "support/random_value.h"

namespace QZCore {

TEST_CASE("base64 has these symbols") {
    struct Row {
        std::string_view bytes;
        std::string_view text;
    };
    const Row rows[] = {{"", ""},
                        {"f", "Zg=="},
                        {"fo", "Zm8="},
                        {"foo", "Zm9v"},
                        {"foob", "Zm9vYg=="},
                        {"fooba", "Zm9vYmE="},
                        {"foobar", "Zm9vYmFy"},
                        {"\xFB\xFF\xFE", "+//+"}};
    for (const Row& row : rows) {
        CAPTURE(row.text);
        std::string text;
        appendBase64(text, bytesOf(row.bytes));
        CHECK(text == row.text);
        const auto bytes = base64Decoded(row.text);
        REQUIRE(bytes.has_value());
        CHECK(textOf(*bytes) == row.bytes);
    }
    CHECK(base64Decoded(" Z m\n8\t=\r\n") == Data{'f', 'o'});
    CHECK(base64Decoded("Zh==") == Data{'f'});  // bits that no byte uses
}

TEST_CASE("what is not base64 gives nothing") {
    for (const std::string_view text : {"Z", "Zg", "Zg=", "Zg===", "=", "====", "Zg==Zg==", "Zm9v=",
                                        "Zm9v====", "Z-_=", "Zm8,", "Zm9\xE9"}) {
        CAPTURE(text);
        CHECK_FALSE(base64Decoded(text).has_value());
    }
}

TEST_CASE("bytes of every length come back") {
    testing::RandomValues random(5);
    for (std::size_t length = 0; length < 200; ++length) {
        Data bytes(length);
        for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random.upTo(255));
        std::string text;
        appendBase64(text, bytes);
        REQUIRE(text.size() == (length + 2) / 3 * 4);
        REQUIRE(base64Decoded(text) == bytes);
    }
}

}  // namespace QZCore
