#include "QZCore/codecs/parsing.h"
#include "support/text_rows.h"

namespace QZCore {

using Rows = std::vector<std::vector<String>>;

TEST_CASE("comma-separated text falls into rows and fields") {
    const testing::TextRow<Rows> rows[] = {
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
    };
    testing::checkRows(rows, csvRowsOfColumns);
}

}  // namespace QZCore
