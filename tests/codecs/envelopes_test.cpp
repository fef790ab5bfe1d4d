#include "QZCore/codecs/envelopes.h"

#include "platform/crypto.h"
#include "support/bytes.h"
#include "support/color_printing.h"

namespace QZCore {
namespace {

constexpr StringView kPassword = u"p\u00E4ssword";

// Made by another implementation of the same forms.
const Data kStored256 = testing::fromHex(
    u"0100000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f25fd1dc2d34b"
    u"07b3f2ff48ab5db74ac91364f4312f266f16e5d9a8d8852c5feb55b66ea778e76934b1552738f670"
    u"85c1");
const Data kStored128 = testing::fromHex(
    u"101112131415161718191a1b1c1d1e1f0e32239d7072ae83960a70f058a45b503330583a34203e26"
    u"9583578b01be83d5d82c5c918f114081c1651bac3eb3df04");

/// `envelope`, which lacks its code, with the one that the password makes.
Data authenticated(Data envelope) {
    const std::string password = toUTF8(kPassword);
    const DataView salt = DataView(envelope).subspan(10, 8);
    Sha256Digest key;
    REQUIRE(deriveKey({KeyHash::Sha1, bytesOf(password), salt, 10'000}, key));
    const auto code = hmacSha256(key, {envelope}).value();
    envelope.insert(envelope.end(), code.begin(), code.end());
    return envelope;
}

}  // namespace

TEST_CASE("stored envelopes open with their password only") {
    CHECK(textOf(dataDecryptedAES256WithPassword(kStored256, kPassword).value()) == "A note.");
    CHECK(textOf(dataDecryptedAES128WithPassword(kStored128, kPassword).value()) ==
          "Sixteen bytes now and five.");
    for (const std::optional<StringView> other :
         {std::optional<StringView>(u"password"), std::optional<StringView>(u""),
          std::optional<StringView>()}) {
        CHECK_FALSE(dataDecryptedAES256WithPassword(kStored256, other));
        CHECK_FALSE(dataDecryptedAES128WithPassword(kStored128, other));
    }
}

TEST_CASE("data come back, and envelopes have these lengths") {
    for (const std::size_t length : {0U, 1U, 5U, 15U, 16U, 17U, 32U, 100'000U}) {
        CAPTURE(length);
        const Data data = testing::randomBytes(length, 6);
        const Data sealed = dataSealedAES256WithPassword(data, u"a").value();
        CHECK(sealed.size() == 34 + length / 16 * 16 + 16 + 32);
        CHECK(dataDecryptedAES256WithPassword(sealed, u"a") == data);
        const Data encrypted = dataEncryptedAES128WithPassword(data, u"").value();
        CHECK(encrypted.size() == length / 16 * 16 + 48);
        CHECK(dataDecryptedAES128WithPassword(encrypted, u"") == data);
        CHECK(dataEncryptedAES128WithPassword(data, u"") != encrypted);
    }
    CHECK_FALSE(dataSealedAES256WithPassword({}, std::nullopt));
    CHECK_FALSE(dataEncryptedAES256WithPassword({}, std::nullopt));
    CHECK_FALSE(dataEncryptedAES128WithPassword({}, std::nullopt));
    const std::uint8_t byte = 0;  // the rest of what is too long is not looked at
    const DataView tooLong(&byte, std::size_t{1} << 32);
    CHECK_FALSE(dataEncryptedAES128WithPassword(tooLong, u""));
}

TEST_CASE("the form without a header begins with zeros and does not open") {
    const Data envelope = dataEncryptedAES256WithPassword({}, kPassword).value();
    CHECK(envelope.size() == 82);
    CHECK(Data(envelope.begin(), envelope.begin() + 34) == Data(34));
    CHECK_FALSE(dataDecryptedAES256WithPassword(envelope, kPassword));
}

TEST_CASE("no length of an envelope is trusted") {
    const Data bytes = testing::randomBytes(200, 7);
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        CAPTURE(length);
        Data envelope(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
        if (length > 0) envelope[0] = 1;
        REQUIRE_FALSE(dataDecryptedAES256WithPassword(envelope, kPassword));
        REQUIRE_FALSE(dataDecryptedAES128WithPassword(envelope, kPassword));
        if (length < kStored256.size()) {
            const DataView start = DataView(kStored256).first(length);
            REQUIRE_FALSE(dataDecryptedAES256WithPassword(start, kPassword));
        }
    }
}

TEST_CASE("no bit of an authenticated envelope can change") {
    testing::withEachBitFlipped(kStored256, [](std::size_t bit, const Data& flipped) {
        CAPTURE(bit);
        REQUIRE_FALSE(dataDecryptedAES256WithPassword(flipped, kPassword));
    });
}

TEST_CASE("an authentic envelope opens with any options, but of no other format or padding") {
    Data envelope(kStored256.begin(), kStored256.end() - 32);
    REQUIRE(authenticated(envelope) == kStored256);
    envelope[1] = 7;
    CHECK(dataDecryptedAES256WithPassword(authenticated(envelope), kPassword).has_value());
    envelope[0] = 2;
    CHECK_FALSE(dataDecryptedAES256WithPassword(authenticated(envelope), kPassword));
    envelope[0] = 1;
    envelope[33] ^= 1;  // the end of the vector, and so of the only block
    CHECK_FALSE(dataDecryptedAES256WithPassword(authenticated(envelope), kPassword));
    envelope.pop_back();
    CHECK_FALSE(dataDecryptedAES256WithPassword(authenticated(envelope), kPassword));
}

TEST_CASE("a changed bit of the other form changes data, or leaves none") {
    testing::withEachBitFlipped(kStored128, [](std::size_t bit, const Data& flipped) {
        CAPTURE(bit);
        const auto read = dataDecryptedAES128WithPassword(flipped, kPassword);
        if (read) REQUIRE(read->size() <= flipped.size() - 32);
        // The blocks that hold the length and stand before it.
        const std::size_t block = bit / 8 / 16;
        if (block == 3) REQUIRE_FALSE(read);
        if (block == 0 && read) REQUIRE(textOf(*read).ends_with(" and five."));
    });
}

TEST_CASE("authentication codes are the published ones") {
    // RFC 4231, test case 2.
    const auto code =
        hmacSha256(bytesOf("Jefe"), {bytesOf("what do ya want "), bytesOf("for nothing?")});
    CHECK(lowerHex(code.value()) ==
          u"5bdcc146bf60754e6a042426089575c75a003f089d2739839dec58b964ec3843");
}

}  // namespace QZCore
