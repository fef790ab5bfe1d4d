// Rendered notes as RTF.
#include <doctest/doctest.h>

#include <filesystem>

#include "QZCore/foundation/files.h"
#include "QZCore/richtext/rtf.h"
#include "support/font_scope.h"
#include "support/printing.h"
#include "tools/qznote/note.h"

namespace QZCore {

TEST_CASE("the example notes come back from RTFD and are written alike again") {
    const testing::MadeUpFonts fonts;
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(QZNOTE_EXAMPLES)) {
        CAPTURE(entry.path().string());
        const auto note = readFile(entry.path().string());
        REQUIRE(note);
        const RichText text = qznote::renderedNote(qznote::noteText(*note), {});
        const auto back = richTextFromRTFD(text.RTFD());
        REQUIRE(back);
        CHECK(back->string() == text.string());
        CHECK(back->RTFD() == text.RTFD());
        ++count;
    }
    CHECK(count > 0);
}

}  // namespace QZCore
