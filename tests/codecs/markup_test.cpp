#include "QZCore/codecs/transforming.h"
#include "support/text_rows.h"

namespace QZCore {

TEST_CASE("markup is removed, and paragraphs become lines") {
    const testing::TextRow<StringView> rows[] = {
        {"inline, other and paragraph tags", u"x<b>y</b><br>z<p>w", u"xy z\nw"},
        {"tags that vanish", u"<span class=\"a\">b</span><u>c</u><i>d</i>", u"bcd"},
        {"names are compared by their beginning", u"<spanner>x", u"x"},
        {"names are compared exactly", u"<B>x<P>y<b >z", u" x y z"},
        {"paragraphs", u"<p/>a</p>b<p class=\"c\">d", u"\na\nb d"},
        {"a comment", u"a<!-- <b> -->b", u"ab"},
        {"the shortest comment, with text behind it", u"<!---->x", u"x"},
        {"too short for a comment", u"<!---->", u" "},
        {"a comment ends behind its opening", u"<!-->x-->y", u"y"},
        {"a comment without an end", u"a<!-- b <i>c</i> &lt;", u"a b <i>c</i> <"},
        {"a tag without an end", u"a<b c &nbsp;d", u"ab c  d"},
        {"a tag that begins another", u"a<b<i>c", u"a c"},
        {"a lone sign", u"<", u""},
        {"entities in order", u"&nbsp;&lt;&gt;%20&amp;", u" <> &amp;"},
        {"what an entity gives is no tag", u"&lt;b&gt;", u"<b>"},
        {"nothing", u"", u""},
    };
    testing::checkRows(rows, stringByRemovingHTML);

    // Texts full of openings take linear time.
    const String openings(1'000'000, u'<');
    CHECK(stringByRemovingHTML(openings) == openings.substr(1));
    String comments;
    for (int i = 0; i < 200'000; ++i) comments += u"<!--";
    CHECK(stringByRemovingHTML(comments) == comments.substr(4));
}

}  // namespace QZCore
