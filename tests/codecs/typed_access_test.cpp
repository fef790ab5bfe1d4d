#include "QZCore/codecs/typed_access.h"

#include <cstdint>

#include "QZCore/codecs/property_list_data.h"
#include "support/printing.h"

namespace QZCore {

TEST_CASE("a read converts by the accessor of its type; defaults stand for absent keys only") {
    struct Row {
        const char* why;
        Value stored;
        std::optional<String> text;
        bool truth;
        std::int32_t integer;
        std::uint32_t withoutSign;
        double real;
    };
    const Row rows[] = {
        {"a number in a text", u"12abc", u"12abc", true, 12, 12, 12},
        {"yes", u"yes", u"yes", true, 0, 0, 0},
        {"an empty text", u"", u"", false, 0, 0, 0},
        {"a fraction", -2.75, u"-2.75", true, -2, 0, -2.75},
        {"beyond 32 bits", 1e10, u"10000000000", true, INT32_MAX, UINT32_MAX, 1e10},
        {"a boolean", true, u"1", true, 1, 1, 1},
        {"a URL", URL{u"a:b"}, u"a:b", false, 0, 0, 0},
        {"an array", Array{1}, {}, false, 0, 0, 0},
        {"a date", Date{7}, {}, false, 0, 0, 0},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const Dictionary dictionary{{u"k", row.stored}};
        CHECK(objectForKey(dictionary, u"k", 99).isIdentical(row.stored));
        CHECK(stringForKey(dictionary, u"k", u"default") == row.text);
        CHECK(boolForKey(dictionary, u"k", !row.truth) == row.truth);
        CHECK(intForKey(dictionary, u"k", 99) == row.integer);
        CHECK(unsignedIntForKey(dictionary, u"k", 99) == row.withoutSign);
        CHECK(integerForKey(dictionary, u"k", 99) == row.stored.integerValue());
        CHECK(unsignedIntegerForKey(dictionary, u"k", 99) == row.stored.unsignedIntegerValue());
        CHECK(floatForKey(dictionary, u"k", 99) == static_cast<float>(row.real));
        CHECK(doubleForKey(dictionary, u"k", 99) == row.real);
    }
}

TEST_CASE("an absent key reads as the default, or as nothing") {
    const Dictionary empty;
    CHECK(objectForKey(empty, u"k", u"default") == Value(u"default"));
    CHECK(stringForKey(empty, u"k", u"default") == u"default");
    CHECK(stringForKey(empty, u"k") == std::nullopt);
    CHECK(boolForKey(empty, u"k", true) != boolForKey(empty, u"k"));
    CHECK(intForKey(empty, u"k", -3) - intForKey(empty, u"k") == -3);
    CHECK(unsignedIntForKey(empty, u"k", 3) - unsignedIntForKey(empty, u"k") == 3);
    CHECK(integerForKey(empty, u"k", INT64_MIN) - integerForKey(empty, u"k") == INT64_MIN);
    CHECK(unsignedIntegerForKey(empty, u"k", 3) - unsignedIntegerForKey(empty, u"k") == 3);
    CHECK(floatForKey(empty, u"k", 0.1F) - floatForKey(empty, u"k") == 0.1F);
    CHECK(doubleForKey(empty, u"k", 0.1) - doubleForKey(empty, u"k") == 0.1);
}

TEST_CASE("what is written reads back, also from data") {
    Dictionary written;
    setBoolean(written, true, u"boolean");
    setInt(written, INT32_MIN, u"int");
    setUnsignedInt(written, UINT32_MAX, u"unsigned int");
    setInteger(written, INT64_MIN, u"integer");
    setUnsignedInteger(written, UINT64_MAX, u"unsigned integer");
    setFloat(written, 0.1F, u"float");
    setDouble(written, -5e-324, u"double");
    const auto restored = dictionaryWithData(dataRepresentation(written).value());
    REQUIRE(restored == written);
    CHECK(restored->objectForKey(u"boolean").isIdentical(true));
    CHECK(intForKey(*restored, u"int") == INT32_MIN);
    CHECK(unsignedIntForKey(*restored, u"unsigned int") == UINT32_MAX);
    CHECK(integerForKey(*restored, u"integer") == INT64_MIN);
    CHECK(unsignedIntegerForKey(*restored, u"unsigned integer") == UINT64_MAX);
    CHECK(floatForKey(*restored, u"float") == 0.1F);
    CHECK(doubleForKey(*restored, u"double") == -5e-324);
}

}  // namespace QZCore
