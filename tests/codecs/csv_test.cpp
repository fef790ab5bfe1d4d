#include "QZCore/codecs/parsing.h"
#include "support/random_texts.h"
#include "support/text_rows.h"

namespace QZCore {

using Rows = std::vector<std::vector<String>>;

TEST_CASE("comma-separated text falls into rows and fields") {
    testing::checkRows<Rows>(
        csvRowsOfColumns,
        {
            {"quotes, doubled quotes and a blank line",
             u"a, \"b,c\",\"d\"\"e\"\n\nx",
             {{u"a", u"b,c", u"d\"e"}, {u"x"}}},
            {"an empty last field is dropped", u"a,b,", {{u"a", u"b"}}},
            {"an empty last field is dropped in quotes too", u"a,\"\"\nb", {{u"a"}, {u"b"}}},
            {"an empty middle field is kept", u"a,,b", {{u"a", u"", u"b"}}},
            {"commas alone", u",,", {{u"", u""}}},
            {"nothing", u"", {}},
            {"line ends alone", u"\r\n\n\x2028", {}},
            {"every newline", u"a\vb\fc\u0085d\u2029e", {{u"a"}, {u"b"}, {u"c"}, {u"d"}, {u"e"}}},
            {"leading and trailing spaces", u" a , b ,\t c", {{u" a ", u"b ", u"c"}}},
            {"line ends in quotes", u"\"a\r\n\nb\"", {{u"a\r\n\nb"}}},
            {"quotes in the middle of a field", u"a\"b,c\"d,e", {{u"ab,cd", u"e"}}},
            {"a doubled quote outside quotes", u"a\"\"b", {{u"ab"}}},
            {"a quote that closes and opens", u"\"a\"\"\"\"b\",c", {{u"a\"\"b", u"c"}}},
            {"an open quote takes the rest", u"a,\"b\nc,d", {{u"a", u"b\nc,d"}}},
            {"a line end after a comma is no white space to skip", u"a,\n b", {{u"a"}, {u" b"}}},
            {"NUL and an unpaired surrogate", {u"\0,\xD800", 3}, {{String(1, u'\0'), u"\xD800"}}},
        });
}

TEST_CASE("fields come back from quotes, whatever they hold") {
    testing::RandomTexts texts(u"ab,,\"\"\n\r \t");
    for (int i = 0; i < 5'000; ++i) {
        Rows rows(1 + static_cast<std::size_t>(i) % 3);
        String text;
        for (auto& row : rows) {
            row = {texts.next(5), texts.next(5), texts.next(5) + u"."};
            for (String field : row) {
                for (std::size_t at = 0; (at = field.find(u'"', at)) != String::npos; at += 2) {
                    field.insert(at, 1, u'"');
                }
                text += u"\"" + field + u"\", ";
            }
            text.replace(text.size() - 2, 2, u"\r\n");
        }
        REQUIRE(csvRowsOfColumns(text) == rows);
    }
}

}  // namespace QZCore
