#include "QZCore/codecs/property_list_data.h"

#include "support/log_capture.h"
#include "support/printing.h"
#include "support/random_value.h"

namespace QZCore {

TEST_CASE("dictionaries and arrays become data and back, and cannot be changed then") {
    const testing::LogCapture log;
    testing::RandomValues random(8);
    for (int round = 0; round < 200; ++round) {
        const Array array{random.tree(3), Value::mutableArray({random.tree(2)})};
        const Dictionary dictionary{{u"a", array}, {random.text(), random.tree(3)}};
        const auto readArray = arrayWithData(dataRepresentation(array).value());
        REQUIRE(readArray == array);
        REQUIRE(readArray->back().mutableArray() == nullptr);
        REQUIRE(dictionaryWithData(dataRepresentation(dictionary).value()) == dictionary);
    }
    CHECK(log.lines().empty());
}

TEST_CASE("what cannot be converted gives nothing and one log line") {
    using Lines = std::vector<String>;
    for (const std::string_view bytes : {"", "bplist00", "<plist><string>a</string></plist>"}) {
        CAPTURE(bytes);
        const bool isOfAnotherKind = bytes.starts_with("<");
        const String reason = bytes.empty() ? u"line 1: no element found"
                                            : u"the parts of the binary list do not fit together";
        const testing::LogCapture log;
        CHECK(dictionaryWithData(bytesOf(bytes)) == std::nullopt);
        CHECK(arrayWithData(bytesOf(bytes)) == std::nullopt);
        CHECK(log.lines() == Lines{u"Error converting data to NSDictionary: " +
                                       (isOfAnotherKind ? u"the list is no dictionary" : reason),
                                   u"Error converting data to NSArray: " +
                                       (isOfAnotherKind ? u"the list is no array" : reason)});
    }
    const testing::LogCapture log;
    CHECK(dataRepresentation(Dictionary{{u"a", u"\u0001"}}) == std::nullopt);
    CHECK(dataRepresentation(Array{u"\u0001"}) == std::nullopt);
    const String reason = u" to data: a text with characters that XML cannot hold";
    CHECK(log.lines() ==
          Lines{u"Error converting NSDictionary" + reason, u"Error converting NSArray" + reason});
}

}  // namespace QZCore
