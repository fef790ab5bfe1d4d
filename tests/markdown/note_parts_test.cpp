// Where a note may be cut. That rendering in parts gives what rendering as a
// whole gives is the law of rendering_law_test.cpp.
#include "markdown/note_parts.h"

#include "support/text_rows.h"

namespace QZCore {

TEST_CASE("a note is cut at the last blank line that no construct reaches across") {
    const testing::TextRow<std::size_t> rows[] = {
        {"between paragraphs", u"one.\n\ntwo\n\nthree", 11},
        {"in any script", u"\u4E00\n\n\u4E8C", 3},
        {"behind a code block", u"```\none\n```\ntwo\n\nthree", 17},
        {"an escaped bracket opens nothing", u"one\n\n\\[two\n\nthree", 12},
        {"not behind an open code block", u"one\n\ntwo\n```\na\n\nb", 5},
        {"nor behind an open link", u"one\n\ntwo [a\n\nb](c", 5},
        {"nor before a list, which may have a title", u"one\n\ntwo\n\n- item", 5},
        {"nowhere in a paragraph", u"one\ntwo", 0},
    };
    testing::checkRows(rows, lastCut);
}

}  // namespace QZCore
