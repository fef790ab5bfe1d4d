// Folded texts: forms in which texts that count as equal are the same units.
#pragma once

#include <cstddef>
#include <vector>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Which differences do not count.
struct Folding {
    bool ignoresCase = false;
    bool ignoresDiacritics = false;
    bool ignoresWidth = false;
    /// Whether canonically equivalent texts differ.
    bool isLiteral = false;
};

/// A folded text that knows where its units come from. A text is folded in
/// segments: one code point when folding literally, else a character with the
/// marks that combine with it.
struct FoldedText {
    String units;
    /// For each unit the position at which its segment starts in the text that
    /// was folded, and then that text's length.
    std::vector<std::size_t> sources;

    /// Whether a segment starts or ends before unit `index`.
    [[nodiscard]] bool isBoundary(std::size_t index) const {
        return index == 0 || sources[index] != sources[index - 1];
    }
};

/// `text` folded.
[[nodiscard]] FoldedText foldedText(StringView text, Folding folding);

/// The units of `text` folded without regard to case.
[[nodiscard]] String caseFolded(StringView text);

}  // namespace QZCore
