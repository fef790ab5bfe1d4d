// A line of text cut into runs, each of which is set in one face.
#pragma once

#include <vector>

#include "platform/pango_font_list.h"
#include "platform/pango_font_substitutes.h"

namespace QZCore {

/// A text that is set in `face`.
struct FontRun {
    const InstalledFace* face;
    String text;
};

/// `text` with each character in the face that shows it: `face` itself or a
/// substitute. Characters without a glyph stay with those before them, or are
/// left out where they have no part in how their neighbours are shaped. An
/// unpaired surrogate becomes U+FFFD.
[[nodiscard]] std::vector<FontRun> fontRunsOf(StringView text, const InstalledFace& face,
                                              const FontSubstitutes& substitutes);

}  // namespace QZCore
