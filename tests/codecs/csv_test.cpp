#include "QZCore/codecs/parsing.h"
#include "support/exact_copy.h"
#include "support/printing.h"
#include "support/random_texts.h"

namespace QZCore {

using Rows = std::vector<std::vector<String>>;

namespace {

/// The rules carried out unit by unit, with a look at each unit's meaning.
Rows rowsOneUnitAtATime(StringView text) {
    Rows rows;
    std::vector<String> row;
    String field;
    bool quoted = false;
    const auto endRow = [&] {
        if (!field.empty()) row.push_back(field);
        if (!row.empty()) rows.push_back(row);
        row.clear();
        field.clear();
        quoted = false;
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (quoted && unit == u'"' && i + 1 < text.size() && text[i + 1] == u'"') {
            field += unit;
            ++i;
        } else if (unit == u'"') {
            quoted = !quoted;
        } else if (quoted || (unit != u',' && !isNewline(unit))) {
            field += unit;
        } else if (unit == u',') {
            row.push_back(field);
            field.clear();
            while (i + 1 < text.size() && isWhitespace(text[i + 1])) ++i;
        } else {
            endRow();
        }
    }
    endRow();
    return rows;
}

}  // namespace

TEST_CASE("comma-separated text falls into rows and fields") {
    struct Row {
        const char* why;
        StringView text;
        Rows rows;
    };
    const Row cases[] = {
        {"quotes, doubled quotes and a blank line",
         u"a, \"b,c\",\"d\"\"e\"\n\nx",
         {{u"a", u"b,c", u"d\"e"}, {u"x"}}},
        {"an empty last field is dropped", u"a,b,", {{u"a", u"b"}}},
        {"an empty last field is dropped in quotes too", u"a,\"\"\nb", {{u"a"}, {u"b"}}},
        {"an empty middle field is kept", u"a,,b", {{u"a", u"", u"b"}}},
        {"commas alone", u",,", {{u"", u""}}},
        {"nothing", u"", {}},
        {"line ends alone", u"\r\n\n\x2028", {}},
        {"every newline character ends a row",
         u"a\vb\fc\x85"
         u"d",
         {{u"a"}, {u"b"}, {u"c"}, {u"d"}}},
        {"leading and trailing spaces", u" a , b ,\t c", {{u" a ", u"b ", u"c"}}},
        {"line ends in quotes", u"\"a\r\n\nb\"", {{u"a\r\n\nb"}}},
        {"quotes in the middle of a field", u"a\"b,c\"d,e", {{u"ab,cd", u"e"}}},
        {"a doubled quote outside quotes", u"a\"\"b", {{u"ab"}}},
        {"an open quote takes the rest", u"a,\"b\nc,d", {{u"a", u"b\nc,d"}}},
        {"a line end after a comma is no white space to skip", u"a,\n b", {{u"a"}, {u" b"}}},
        {"NUL and an unpaired surrogate", {u"\0,\xD800", 3}, {{String(1, u'\0'), u"\xD800"}}},
    };
    for (const Row& row : cases) {
        CAPTURE(row.why);
        CHECK(csvRowsOfColumns(row.text) == row.rows);
    }
}

TEST_CASE("reading rows in pieces gives what reading them unit by unit gives") {
    testing::RandomTexts texts(u"aa,,\"\"\n\r \t");
    for (int i = 0; i < 50'000; ++i) {
        const String text = texts.next(12);
        REQUIRE(csvRowsOfColumns(testing::ExactCopy(text)) == rowsOneUnitAtATime(text));
    }
}

}  // namespace QZCore
