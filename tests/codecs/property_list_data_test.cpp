#include "QZCore/codecs/property_list_data.h"

#include "support/log_capture.h"
#include "support/printing.h"
#include "support/random_value.h"

namespace QZCore {

TEST_CASE("dictionaries and arrays become data and back") {
    const testing::LogCapture log;
    testing::RandomValues random(8);
    for (int round = 0; round < 200; ++round) {
        const Array array{random.tree(3), random.tree(3)};
        const Dictionary dictionary{{u"a", array}, {random.text(), random.tree(3)}};
        const auto arrayData = dataRepresentation(array);
        const auto dictionaryData = dataRepresentation(dictionary);
        REQUIRE(arrayData.has_value());
        REQUIRE(dictionaryData.has_value());
        REQUIRE(arrayWithData(*arrayData) == array);
        REQUIRE(dictionaryWithData(*dictionaryData) == dictionary);
    }
    CHECK(log.lines().empty());
}

TEST_CASE("data that are no list of the kind give nothing and one log line") {
    struct Row {
        std::string_view bytes;
        StringView reason;
    };
    const Row rows[] = {
        {"<plist><string>a</string></plist>", u""},
        {"<plist>\n<true>1</true></plist>", u"line 2: a text inside a boolean"},
        {"", u"line 1: no element found"},
        {"bplist00", u"the parts of the binary list do not fit together"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.bytes);
        const testing::LogCapture log;
        CHECK(dictionaryWithData(bytesOf(row.bytes)) == std::nullopt);
        CHECK(arrayWithData(bytesOf(row.bytes)) == std::nullopt);
        const auto reasonOr = [&](StringView otherKind) {
            return String(row.reason.empty() ? otherKind : row.reason);
        };
        CHECK(log.lines() == std::vector{u"Error converting data to NSDictionary: " +
                                             reasonOr(u"the list is no dictionary"),
                                         u"Error converting data to NSArray: " +
                                             reasonOr(u"the list is no array")});
    }
}

TEST_CASE("what no property list holds gives no data and one log line") {
    const testing::LogCapture log;
    CHECK(dataRepresentation(Dictionary{{u"a", u"\u0001"}}) == std::nullopt);
    CHECK(dataRepresentation(Array{u"\u0001"}) == std::nullopt);
    CHECK(log.lines() ==
          std::vector<String>{u"Error converting NSDictionary to data: a text with characters that "
                              u"XML cannot hold",
                              u"Error converting NSArray to data: a text with characters that XML "
                              u"cannot hold"});
}

TEST_CASE("what is read cannot be changed") {
    const auto read = dictionaryWithData(
        bytesOf("<plist><dict><key>a</key><dict/><key>b</key><array/></dict></plist>"));
    REQUIRE(read.has_value());
    CHECK(read->objectForKey(u"a").mutableDictionary() == nullptr);
    CHECK(read->objectForKey(u"b").mutableArray() == nullptr);
}

}  // namespace QZCore
