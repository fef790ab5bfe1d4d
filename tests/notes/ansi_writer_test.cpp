#include "tools/qznote/ansi_writer.h"

#include <doctest/doctest.h>

#include "support/font_scope.h"
#include "support/random_texts.h"
#include "support/text_rows.h"
#include "tools/qznote/note.h"

namespace QZCore {
namespace {

std::string rendered(StringView note) {
    return qznote::ansiText(qznote::renderedNote(note, {}), qznote::baseAttributes({}));
}

}  // namespace

TEST_CASE("constructs become terminal codes that end with their line") {
    const testing::MadeUpFonts fonts;
    const testing::TextRow<std::string> rows[] = {
        {"emphasis", u"a **b** *c*\n", "a \x1b[1mb\x1b[0m \x1b[3mc\x1b[0m\n"},
        {"code over two lines", u"```\na\nb\n```\n",
         "\x1b[38;2;0;0;0;48;2;241;241;241m\x1b[Ka\x1b[0m\n"
         "\x1b[38;2;0;0;0;48;2;241;241;241m\x1b[Kb\x1b[0m\n"},
        {"a translucent colour is mixed with paper", u"==a==",
         "\x1b[38;2;0;0;0;48;2;255;255;153ma\x1b[0m\n"},
        {"a link", u"[a](http://a.example)",
         "\x1b[4;38;2;26;115;232m\x1b]8;;http://a.example\x1b\\a\x1b[0m\x1b]8;;\x1b\\\n"},
        {"an image", u"![a b|64x48](x:y)", "[a b 64x48]\n"},
        {"a quotation has a bar", u"> a\n> *b*\n", "\u2502 a\n\u2502 \x1b[3mb\x1b[0m\n"},
        {"sub-items stand below the text", u"- a\n\t1. b\n\t\t- c\n- d",
         "  \u25CF a\n    1. b\n       \u25CF c\n  \u25CF d\n"},
        {"numbers are aligned", u"1. a\n1. a\n1. a\n1. a\n1. a\n1. a\n1. a\n1. a\n1. a\n1. a",
         "   1. a\n   2. a\n   3. a\n   4. a\n   5. a\n   6. a\n   7. a\n   8. a\n   9. a\n"
         "  10. a\n"},
        {"what belongs to an item", u"1. a\n   b\n\nc", "  1. a\n     b\n\nc\n"},
        {"code in an item", u"1. a\n```\n  b\n \n  c\n```\n",
         "  1. a\n     \x1b[38;2;0;0;0;48;2;241;241;241m\x1b[Kb\x1b[0m\n"
         "     \x1b[38;2;0;0;0;48;2;241;241;241m\x1b[K\x1b[0m\n"
         "     \x1b[38;2;0;0;0;48;2;241;241;241m\x1b[Kc\x1b[0m\n"},
        {"one of the two empty lines behind a list goes", u"- a\n\n\nb", "  \u25CF a\n\n\nb\n"},
        {"markers look as all of the list does", u"*- a*",
         "  \x1b[3m\u25CF\x1b[0m \x1b[3ma\x1b[0m\n"},
        {"control characters", u"a\x1b[31m\x7F\u009B\u2029\x07",
         "a\u241B[31m\u2421\uFFFD\n\u2407\n"},
    };
    testing::checkRows(rows, rendered);
}

TEST_CASE("no note switches anything on beyond its line") {
    const testing::MadeUpFonts fonts;
    testing::RandomTexts texts(u"a*_`=~[](:/)\n\r\x1b ");
    for (int i = 0; i < 2000; ++i) {
        const std::string ansi = rendered(texts.next(40));
        std::size_t start = 0;
        while (start < ansi.size()) {
            const std::size_t end = ansi.find('\n', start);
            REQUIRE(end != std::string::npos);
            const std::string line = ansi.substr(start, end - start);
            const std::size_t last = line.rfind("\x1b[");
            if (last != std::string::npos) REQUIRE(line.substr(last, 4) == "\x1b[0m");
            const std::size_t link = line.rfind("\x1b]8;;");
            if (link != std::string::npos) REQUIRE(line.substr(link, 7) == "\x1b]8;;\x1b\\");
            start = end + 1;
        }
    }
}

}  // namespace QZCore
