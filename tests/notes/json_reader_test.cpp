#include "tools/qznote/json_reader.h"

#include <doctest/doctest.h>

#include "QZCore/foundation/dictionary.h"
#include "support/printing.h"

namespace QZCore {

TEST_CASE("JSON is read as values") {
    const Value value = qznote::readJson(R"({"a": [1, -2, 2.5, true, null, "\u00e4"], "b": null})");
    REQUIRE(value.dictionary() != nullptr);
    CHECK(*value.dictionary() == Dictionary{{u"a", Array{1, -2, 2.5, true, u"\u00E4"}}});
}

TEST_CASE("what is no JSON text is no value") {
    for (const char* fault :
         {"", " ", "{", "[1", "[1,]", "{\"a\"}", "01", "nul", "\"a", "\"\x01\"", "[]x",
          "{\"a\":1,}", "'a'", "\"\\ud800\"", "\"\xff\"", "1e999", "// a"}) {
        CAPTURE(fault);
        CHECK(qznote::readJson(fault).isAbsent());
    }
    CHECK(qznote::readJson(std::string(513, '[')).isAbsent());
    CHECK(qznote::readJson(std::string(513, '[') + std::string(513, ']')).isAbsent());
    const std::string deepest = std::string(512, '[') + std::string(512, ']');
    CHECK(qznote::readJson(deepest).array() != nullptr);
}

}  // namespace QZCore
