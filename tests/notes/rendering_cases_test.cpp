#include <doctest/doctest.h>

#include "QZCore/markdown.h"
#include "support/case_file.h"
#include "support/font_scope.h"
#include "support/markdown_settings.h"
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

}  // namespace QZCore
