// A line of text cut into runs, each of which is set in one face.
#pragma once

#include <string>
#include <vector>

#include "platform/pango_font_list.h"
#include "platform/pango_font_substitutes.h"

namespace QZCore {

/// The bytes from `start` to before `end` of a line, which are set in `face`.
struct FontRun {
    const InstalledFace* face;
    std::size_t start;
    std::size_t end;
};

/// A line in UTF-8 and its runs, which follow each other without a gap.
struct FontLine {
    std::string bytes;
    std::vector<FontRun> runs;
};

/// `text` with each character in the face that shows it: `face` itself or a
/// substitute. Characters without a glyph stay with those before them, or are
/// left out where they have no part in how their neighbours are shaped.
[[nodiscard]] FontLine fontLineOf(StringView text, const InstalledFace& face,
                                  const FontSubstitutes& substitutes);

}  // namespace QZCore
