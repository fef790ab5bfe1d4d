// Where a note may be cut. That rendering in parts gives what rendering as a
// whole gives is the law of rendering_law_test.cpp.
#include "markdown/note_parts.h"

#include "support/printing.h"

namespace QZCore {

TEST_CASE("a note is cut at the last blank line that no construct reaches across") {
    struct Row {
        const char* why;
        StringView text;
        StringView end;
    };
    const Row rows[] = {
        {"between paragraphs", u"one.\n\ntwo\n\nthree", u"two\n\n"},
        {"in any script", u"\u4E00\n\n\u4E8C", u"\u4E00\n\n"},
        {"not at the end", u"one\n\ntwo\n\n", u"one\n\n"},
        {"not before a list, which may have a title", u"one\n\ntwo\n\n- item", u"one\n\n"},
        {"not where a marker may be left alone", u"one\n\ntwo\n- ``\n\nthree", u"one\n\n"},
        {"not behind a blank", u"one\n\ntwo\n- \n\nthree", u"one\n\n"},
        {"not in a code block", u"one\n\ntwo\n```\na\n\nb\n```\n", u"one\n\n"},
        {"nor in one that may end later", u"one\n\ntwo\n```\na\n\nb", u"one\n\n"},
        {"behind a code block", u"```\none\n```\ntwo\n\nthree", u"two\n\n"},
        {"not in a link text", u"one\n\ntwo [a\n\nb](c)", u"one\n\n"},
        {"not in a link target", u"one\n\ntwo [a](b\n\nc)", u"one\n\n"},
        {"an escaped bracket opens nothing", u"one\n\n\\[two\n\nthree", u"two\n\n"},
        {"and closes nothing", u"one\n\ntwo [a\\]\n\nb", u"one\n\n"},
        {"nowhere in a paragraph", u"one\ntwo", u""},
        {"nowhere between carriage returns", u"one\r\n\r\ntwo", u""},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const StringView part = row.text.substr(0, lastCut(row.text));
        CHECK(part.ends_with(row.end));
        CHECK(part.empty() == row.end.empty());
    }
}

}  // namespace QZCore
