#include "QZCore/codecs/parsing.h"
#include "support/exact_copy.h"
#include "support/printing.h"

namespace QZCore {
TEST_CASE("lines are split, and a line of one unit after another is passed over") {
    struct Row {
        const char* why;
        StringView text;
        std::vector<String> components;
    };
    const Row rows[] = {
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
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(componentsSeparatedByLineSeparators(testing::ExactCopy(row.text)) == row.components);
    }
}

TEST_CASE("a text splits at every match of a pattern") {
    struct Row {
        const char* why;
        StringView text;
        StringView pattern;
        std::vector<String> components;
    };
    const Row rows[] = {
        {"matches of different lengths", u"a1b22c", u"[0-9]+", {u"a", u"b", u"c"}},
        {"matches at both ends", u",a,,", u",", {u"", u"a", u"", u""}},
        {"no match", u"abc", u"x", {u"abc"}},
        {"empty matches split too", u"ab", u"x*", {u"", u"a", u"b", u""}},
        {"an empty text", u"", u",", {u""}},
        {"no pattern", u"a(b", u"(", {u"a(b"}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(componentsSeparatedByPattern(row.text, row.pattern) == row.components);
    }
}

}  // namespace QZCore
