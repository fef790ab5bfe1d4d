// What is done for notes that were written elsewhere.
#include "tools/qznote/note.h"

#include <doctest/doctest.h>

#include "support/font_scope.h"
#include "support/random_texts.h"
#include "support/text_rows.h"
#include "tools/qznote/fences.h"
#include "tools/qznote/list_indent.h"
#include "tools/qznote/loose_lists.h"
#include "tools/qznote/outline_report.h"
#include "tools/qznote/quotations.h"

namespace QZCore {

TEST_CASE("fences become those that the dialect knows") {
    const testing::TextRow<StringView> rows[] = {
        {"a language goes", u"```sh\na\n```\nb", u"```\na\n```\nb"},
        {"with all that is said of it", u"``` js title=x\na\n```", u"```\na\n```"},
        {"an indented block", u"  ```\n  a\n    b\n c\n\n  ```  \nd", u"```\na\n  b\nc\n\n```\nd"},
        {"by tabs", u"\t```c\n\ta\n\t```\n", u"```\na\n```\n"},
        {"below a line its code stays apart", u"1. a\n  ```\n  b\n  ```\n",
         u"1. a\n```\n  b\n```\n"},
        {"below an empty line it does not", u"1. a\n \n  ```\n  b\n  ```\n",
         u"1. a\n \n```\nb\n```\n"},
        {"a fence inside code", u"```\n```sh\n```\n", u"```\n```sh\n```\n"},
        {"code in a line", u"```a``` b\n```\n", u"```a``` b\n```\n"},
        {"not closed", u" ```sh\na ```\n", u" ```sh\na ```\n"},
        {"four backticks", u" ````\na\n````\n", u" ````\na\n````\n"},
    };
    testing::checkRows(rows, qznote::withPlainFences);
}

TEST_CASE("plain fences stay, and nothing else of a note changes") {
    testing::RandomTexts texts(u"``` a\n\n");
    for (int i = 0; i < 5000; ++i) {
        const String note = texts.next(40);
        const String plain = qznote::withPlainFences(note);
        REQUIRE(qznote::withPlainFences(plain) == plain);
        if (note.find(u"```") == String::npos) REQUIRE(plain == note);
    }
    String open;
    for (int i = 0; i < 100000; ++i) open += u" ```a\n";
    CHECK(qznote::withPlainFences(open) == open);
}

TEST_CASE("empty lines end neither a list that goes on nor a quotation") {
    const testing::TextRow<StringView> rows[] = {
        {"the next number", u"1. a\n\n2. b\n \n\n3. c\n\nd", u"1. a\n2. b\n3. c\n\nd"},
        {"the same number", u"1. a\n\n1. b", u"1. a\n1. b"},
        {"another number", u"1. a\n\n3. b", u"1. a\n\n3. b"},
        {"bullets", u"- a\n\n- b", u"- a\n\n- b"},
        {"another indentation", u"1. a\n\n 2. b", u"1. a\n\n 2. b"},
        {"what belongs to an item", u"- a\n\n  b\n\n\t- c\n\nd\n\n  e",
         u"- a\n  b\n\t- c\n\nd\n\n  e"},
        {"too little indentation", u"1. a\n\n  b", u"1. a\n\n  b"},
        {"code in a list", u"- a\n\n  ```\n  b\n\n  c\n  ```\n\nd",
         u"- a\n  ```\n  b\n \n  c\n  ```\n\nd"},
        {"code", u"```\n1. a\n\n2. b\n>\n```\n", u"```\n1. a\n\n2. b\n>\n```\n"},
        {"no markers", u"1a\n\n 2.a\n\n -\n\n1234567890. a\n\n  b",
         u"1a\n\n 2.a\n\n -\n\n1234567890. a\n\n  b"},
        {"a quotation", u"> a\n>\n> b\n>", u"> a\n> \n> b\n> "},
        {"at the end", u"1. a\n\n", u"1. a\n\n"},
    };
    testing::checkRows(rows, [](StringView note) {
        return qznote::withTightLists(qznote::withQuotedEmptyLines(note));
    });
}

TEST_CASE("a note shows how far it indents lists") {
    const testing::TextRow<std::int64_t> rows[] = {
        {"no list", u"a", 4},
        {"no sub-items", u"- a\n- b", 4},
        {"two", u"- a\n  - b\n    - c\n  - d", 2},
        {"three", u"1. a\n   - b", 3},
        {"two and three", u"1. a\n   - b\n- c\n  - d", 2},
        {"four", u"- a\n    - b\n- c\n  - d", 4},
        {"more", u"- a\n        - b", 4},
        {"one is a slip", u"- a\n - b", 4},
        {"tabs say nothing", u"- a\n\t\t- b\n    - c", 4},
        {"nor do other lists", u"- a\n\n  - b\n  - c", 4},
        {"nor does the first item", u"  - a\n  - b", 4},
        {"nor does code", u"```\na:\n- b\n  - c\n  - d\n```\n- a\n    - b", 4},
    };
    testing::checkRows(rows, qznote::blanksPerLevel);
    const testing::MadeUpFonts fonts;
    CHECK(qznote::outlineReport(qznote::renderedNote(u"- a\n  - b\n    - c\n  - d", {}),
                                qznote::baseAttributes({})) ==
          "\u25CF a\n  \u25E6 b\n    \u25CF c\n  \u25E6 d\n");
}

}  // namespace QZCore
