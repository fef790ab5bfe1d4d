#include "QZCore/codecs/parsing.h"
#include "support/text_rows.h"

namespace QZCore {

TEST_CASE("lines are split, and a line of one unit after another is passed over") {
    const testing::TextRow<std::vector<String>> rows[] = {
        {"an empty line after another", u"a\n\nb", {u"a", u"b"}},
        {"every second of a run of empty lines", u"aa\n\n\n\nbb", {u"aa", u"", u"bb"}},
        {"an empty first line is kept", u"\nab", {u"", u"ab"}},
        {"empty lines alone", u"\n\n\n", {u"", u""}},
        {"a final terminator adds nothing", u"ab\n", {u"ab"}},
        {"a last line of one unit without terminator", u"ab\nc", {u"ab"}},
        {"a last line of one unit with terminator", u"ab\nc\n", {u"ab", u"c"}},
        {"an empty line of two units is kept", u"a\r\n\r\nbc", {u"a", u"", u"bc"}},
        {"a line end of two units after one", u"a\n\r\nb\r", {u"a", u"", u"b"}},
        {"all terminators", u"aa\rbb\u0085cc\u2028dd\u2029ee", {u"aa", u"bb", u"cc", u"dd", u"ee"}},
        {"tabulations and form feeds end no line", u"a\v\fb", {u"a\v\fb"}},
        {"nothing", u"", {}},
    };
    testing::checkRows(rows, componentsSeparatedByLineSeparators);
}

TEST_CASE("a text splits at every match of a pattern") {
    using Pieces = std::vector<String>;
    CHECK(componentsSeparatedByPattern(u"a1b22", u"[0-9]+") == Pieces{u"a", u"b", u""});
    CHECK(componentsSeparatedByPattern(u",,a", u",") == Pieces{u"", u"", u"a"});
    CHECK(componentsSeparatedByPattern(u"ab", u"x*") == Pieces{u"", u"a", u"b", u""});
    CHECK(componentsSeparatedByPattern(u"", u",") == Pieces{u""});
    CHECK(componentsSeparatedByPattern(u"a(b", u"(") == Pieces{u"a(b"});
}

}  // namespace QZCore
