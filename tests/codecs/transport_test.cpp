#include "QZCore/codecs/transforming.h"
#include "codecs/percent.h"
#include "support/random_texts.h"
#include "support/text_rows.h"

namespace QZCore {

TEST_CASE("quoted-printable text is read as written") {
    CHECK(stringToQuotedPrintableFormat(u"A\n") == u"=41=0A");
    CHECK(stringToQuotedPrintableFormat(u"é") == u"=C3=A9");
    CHECK(stringToQuotedPrintableFormat(u"\xD800") == u"=EF=BF=BD");
    const testing::TextRow<std::optional<String>> rows[] = {
        {"a soft line break within a character", u"=C3=\r\n=A9", u"é"},
        {"lower-case digits", u"=c3=a9", u"é"},
        {"text around it", u"a =3D b\r\n", u"a = b\r\n"},
        {"percent signs are read as well", u"%41", u"A"},
        {"characters that are not encoded", u"é\xD800=C3=A9", u"é\xD800é"},
        {"a line break that is left by another", u"==\r\n\r\n", {}},
        {"one digit", u"a=4", {}},
        {"a percent sign alone", u"100%", {}},
        {"bytes that are not UTF-8", u"=FF", {}},
        {"a character that text interrupts", u"=C3x=A9", {}},
    };
    testing::checkRows(rows, stringFromQuotedPrintableFormat);
}

TEST_CASE("URLs keep what their parts allow") {
    CHECK(percentEncodePath(u"/a b/é;c?d#e%f") == u"/a%20b/%C3%A9;c%3Fd%23e%25f");
    CHECK(percentEncodePath(u"-._~!$&'()*+,;=:@/[]") == u"-._~!$&'()*+,;=:@/%5B%5D");
    CHECK(percentEncodeQuery(u"a=b&c/?-._~") == u"a%3Db%26c/?-._~");
    CHECK(percentEncodeQuery(u":#[]@!$&'()*+,;=") ==
          u"%3A%23%5B%5D%40%21%24%26%27%28%29%2A%2B%2C%3B%3D");
    CHECK(percentEncodePath(StringView(u"\0\xDC00", 2)) == u"%00%EF%BF%BD");
}

TEST_CASE("what is encoded for transport is decoded to what it was") {
    testing::RandomTexts texts(u"aZ09=%+/?:#[]@!$&'()*;, \r\n~é\u20AC\uFEFF\0");
    for (int i = 0; i < 5'000; ++i) {
        const String text = texts.next(8) + u"\U0001F600";
        REQUIRE(stringFromQuotedPrintableFormat(stringToQuotedPrintableFormat(text)) == text);
        REQUIRE(percentDecoded(percentEncodePath(text)) == text);
        REQUIRE(percentDecoded(percentEncodeQuery(text)) == text);
    }
}

}  // namespace QZCore
