#include "QZCore/codecs/digests.h"

#include "support/bytes.h"
#include "support/color_printing.h"

namespace QZCore {

TEST_CASE("digests are the published ones") {
    struct Row {
        StringView text;
        StringView sha1;
        StringView sha256;
    };
    const Row rows[] = {
        {u"", u"da39a3ee5e6b4b0d3255bfef95601890afd80709",
         u"e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        {u"abc", u"a9993e364706816aba3e25717850c26c9cd0d89d",
         u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        {u"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
         u"84983e441c3bd26ebaae4aa1f95129e5e54670f1",
         u"248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
        {u"\u00E9\U0001F600", u"9c286deb5d7549eafd1dcb2b58e0b573bc1b4a97",
         u"1184d1f608158eea09d297565575892231550c403aaa913008d867a97cfd5c76"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.text);
        const std::string bytes = toUTF8(row.text);
        CHECK(sha1AsHex(row.text) == row.sha1);
        CHECK(sha256AsHex(row.text) == row.sha256);
        CHECK(SHA1AsHexString(bytesOf(bytes)) == row.sha1);
        CHECK(SHA256AsHexString(bytesOf(bytes)) == row.sha256);
        CHECK(SHA1(bytesOf(bytes)) == testing::fromHex(row.sha1));
        CHECK(SHA256(bytesOf(bytes)) == testing::fromHex(row.sha256));
    }
    CHECK(sha256AsURLSafeBase64(u"\u00E9\U0001F600") ==
          u"EYTR9ggVjuoJ0pdWVXWJIjFVDEA6qpEwCNhnqXz9XHY");
}

TEST_CASE("keys from passwords are the published ones") {
    // RFC 7914, section 11, cut to 32 bytes, and the vectors of RFC 6070 worked
    // out for SHA-256.
    CHECK(pbkdf2UsingSHA256AsHexWithSalt(u"passwd", u"salt", 1) ==
          u"55ac046e56e3089fec1691c22544b605f94185216dde0465e68b9d57c20dacbc");
    CHECK(pbkdf2UsingSHA256AsHexWithSalt(u"password", u"salt", 4096) ==
          u"c5e478d59288c841aa530db6845c4c8d962893a001ce4e11a4963873aa98134a");
    CHECK(pbkdf2UsingSHA256AsURLSafeBase64WithSalt(u"password", u"salt", 2) ==
          u"rk0Mla9rRtMtCt_5KPBt0CowP47zwlHf1uLYWpVHTEM");
    for (const std::int32_t iterations : {0, -1, INT32_MIN}) {
        CHECK_FALSE(pbkdf2UsingSHA256AsHexWithSalt(u"password", u"salt", iterations));
        CHECK_FALSE(pbkdf2UsingSHA256AsURLSafeBase64WithSalt(u"password", u"salt", iterations));
    }
    CHECK(pbkdf2UsingSHA256AsHexWithSalt(u"", u"", 1));
}

}  // namespace QZCore
