#include "QZCore/codecs/parsing.h"
#include "support/printing.h"
#include "support/random_texts.h"

namespace QZCore {
namespace {

struct Line {
    Range range;
    String contents;
};

/// All lines, none passed over.
std::vector<Line> linesOf(StringView text) {
    std::vector<Line> lines;
    String contents;
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        const bool startsPair = unit == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        const bool isTerminator = StringView(u"\n\r\x85\x2028\x2029").find(unit) != String::npos;
        if (!isTerminator) contents += unit;
        const bool ends = (isTerminator && !startsPair) || i + 1 == text.size();
        if (!ends) continue;
        lines.push_back({{start, i + 1 - start}, contents});
        contents.clear();
        start = i + 1;
    }
    return lines;
}

/// The walk over positions in which each line is looked for anew.
std::vector<String> componentsByLookUp(StringView text) {
    const std::vector<Line> lines = linesOf(text);
    std::vector<String> components;
    for (std::size_t index = 0; index < text.size();) {
        for (const Line& line : lines) {
            if (!line.range.contains(index)) continue;
            components.push_back(line.contents);
            index = line.range.end() + 1;
            break;
        }
    }
    return components;
}

}  // namespace

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
        {"all terminators",
         u"aa\rbb\x85"
         u"cc\x2028"
         u"dd\x2029"
         u"ee",
         {u"aa", u"bb", u"cc", u"dd", u"ee"}},
        {"tabulations and form feeds end no line", u"a\v\fb", {u"a\v\fb"}},
        {"nothing", u"", {}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(componentsSeparatedByLineSeparators(row.text) == row.components);
    }
    testing::RandomTexts texts(u"ab\n\r\x2028");
    for (int i = 0; i < 20'000; ++i) {
        const String text = texts.next(12);
        REQUIRE(componentsSeparatedByLineSeparators(text) == componentsByLookUp(text));
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
        {"matches at both ends", u",a,", u",", {u"", u"a", u""}},
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
