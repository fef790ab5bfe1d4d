#include <doctest/doctest.h>

#include <algorithm>
#include <filesystem>

#include "QZCore/foundation/files.h"
#include "support/font_scope.h"
#include "support/tag_balance.h"
#include "tools/qznote/html_writer.h"
#include "tools/qznote/note.h"
#include "tools/qznote/runs_writer.h"

namespace QZCore {
namespace {

std::string fileText(const std::filesystem::path& path) {
    CAPTURE(path.string());
    const auto bytes = readFile(path.string());
    REQUIRE(bytes.has_value());
    return std::string(textOf(*bytes));
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

}  // namespace

TEST_CASE("the example notes render as their files of runs show") {
    const testing::MadeUpFonts fonts;
    const std::filesystem::path runs = QZCORE_TEST_DATA "/examples";
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(QZNOTE_EXAMPLES)) {
        const std::string name = entry.path().stem().string();
        CAPTURE(name);
        const RichText text =
            qznote::renderedNote(qznote::noteText(bytesOf(fileText(entry.path()))), {});
        const auto expected = linesOf(fileText(runs / (name + ".txt")));
        const auto actual = linesOf(qznote::runLines(text));
        for (std::size_t i = 0; i < std::min(expected.size(), actual.size()); ++i) {
            REQUIRE(actual[i] == expected[i]);
        }
        CHECK(actual.size() == expected.size());
        const std::string page =
            qznote::htmlPage(text, {.title = u"Note", .base = qznote::baseAttributes({})});
        CHECK(testing::PageReader::read(page).fault == "");
        ++count;
    }
    CHECK(count == 8);
}

}  // namespace QZCore
