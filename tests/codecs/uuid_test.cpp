#include "QZCore/codecs/uuid.h"

#include <random>

#include "support/exact_copy.h"
#include "support/printing.h"

namespace QZCore {

TEST_CASE("UUIDs are told from other texts") {
    constexpr StringView kUUID = u"6ba7b810-9DAD-11d1-80b4-00c04fd430c8";
    CHECK(isUUID(testing::ExactCopy(kUUID)));
    for (std::size_t i = 0; i < kUUID.size(); ++i) {
        CAPTURE(i);
        for (const char16_t other : {u'g', u'-', u'0', u'\uFF10'}) {
            String changed(kUUID);
            changed[i] = other;
            const bool keepsForm = kUUID[i] == u'-' ? other == u'-' : other == u'0';
            CHECK(isUUID(changed) == keepsForm);
        }
        CHECK_FALSE(isUUID(kUUID.substr(i + 1)));
    }
    CHECK_FALSE(isUUID(String(kUUID) + u"0"));
    CHECK(isUndashedUUID(u"6ba7b8109DAD11d180b400c04fd430c8"));
    CHECK_FALSE(isUndashedUUID(u"6ba7b8109dad11d180b400c04fd430c"));
    CHECK_FALSE(isUndashedUUID(u"6ba7b8109dad11d180b400c04fd430cg"));
}

TEST_CASE("a UUID comes back in upper case from its short form") {
    // RFC 4122, appendix C; the short form by RFC 4648, section 5.
    CHECK(encodeUUIDAsURLSafeBase64(u"6ba7b810-9dad-11d1-80b4-00c04fd430c8") ==
          u"a6e4EJ2tEdGAtADAT9QwyA");
    CHECK(encodeUUIDAsURLSafeBase64(u"FBFFBFFB-FFBF-FBFF-BFFB-FFBFFBFFBFFB") ==
          u"-_-_-_-_-_-_-_-_-_-_-w");
    CHECK(decodeURLSafeBase64UUID(u"+/+/+/+/+/+/+/+/+/+/+w") ==
          u"FBFFBFFB-FFBF-FBFF-BFFB-FFBFFBFFBFFB");
    std::mt19937 random(1);
    for (int i = 0; i < 1'000; ++i) {
        String uuid = u"xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
        for (char16_t& unit : uuid) {
            if (unit == u'x') unit = u"0123456789ABCDEF"[random() % 16];
        }
        const auto shortForm = encodeUUIDAsURLSafeBase64(uuid);
        REQUIRE(shortForm);
        REQUIRE(decodeURLSafeBase64UUID(*shortForm) == uuid);
    }
}

TEST_CASE("what is no UUID has no other form") {
    CHECK_FALSE(encodeUUIDAsURLSafeBase64(u"6ba7b8109dad11d180b400c04fd430c8"));
    CHECK_FALSE(encodeUUIDAsURLSafeBase64(u"6ba7b810-9dad-11d1-80b4-00c04fd430cX"));
    const StringView start = u"a6e4EJ2tEdGAtADAT9Qwy";
    for (const StringView end : {u"", u"AA", u"!", u"=", u" ", u"\u0141", u"\xD800"}) {
        CAPTURE(end);
        CHECK_FALSE(decodeURLSafeBase64UUID(String(start) + String(end)));
    }
    CHECK_FALSE(decodeURLSafeBase64UUID(u"a6e4EJ2tEdGAtADAT9Qw=="));
    CHECK_FALSE(decodeURLSafeBase64UUID(u"a6e4EJ2tEdGAtADAT9    "));
}

}  // namespace QZCore
