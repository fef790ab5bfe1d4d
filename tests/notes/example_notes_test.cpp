// Notes and what they render as, in files.
#include <doctest/doctest.h>

#include <filesystem>

#include "QZCore/foundation/files.h"
#include "QZCore/richtext/html.h"
#include "support/case_file.h"
#include "support/font_scope.h"
#include "support/markdown_settings.h"
#include "support/tag_balance.h"
#include "tools/qznote/note.h"
#include "tools/qznote/runs_writer.h"

namespace QZCore {

TEST_CASE("notes render as the case files show") {
    const testing::MadeUpFonts fonts;
    for (const testing::Case& row : testing::loadCases(QZCORE_TEST_DATA)) {
        CAPTURE(row.where);
        CAPTURE(row.name);
        const testing::MarkdownSettings settings(row.settings);
        RichText text(fromUTF8(row.input));
        renderContainedMarkdownWithStyles(text, settings.styles(), settings.syntax(),
                                          settings.preferences());
        CHECK(qznote::runLines(text) == row.expected);
    }
}

TEST_CASE("the example notes render as their files of runs show") {
    const testing::MadeUpFonts fonts;
    const std::filesystem::path runs = QZCORE_TEST_DATA "/examples";
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(QZNOTE_EXAMPLES)) {
        const std::string name = entry.path().stem().string();
        CAPTURE(name);
        const auto note = readFile(entry.path().string());
        const auto expected = readFile((runs / (name + ".txt")).string());
        REQUIRE(note);
        REQUIRE(expected);
        const RichText text = qznote::renderedNote(qznote::noteText(*note), {});
        CHECK(qznote::runLines(text) == textOf(*expected));
        const std::string page =
            toUTF8(htmlFromRichText(text, {.title = u"Note", .base = qznote::baseAttributes({})}));
        CHECK(testing::PageReader::read(page).fault == "");
        ++count;
    }
    CHECK(count == 8);
}

}  // namespace QZCore
