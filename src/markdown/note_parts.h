// A note cut into parts that can be rendered one by one.
//
// Passes walk over a whole text again and again, which is quick as long as the
// text stays in the processor's caches. So a long note is cut where no construct
// can reach across and what comes out is the same as without the cut.
#pragma once

#include <cstddef>
#include <vector>

#include "QZCore/markdown/syntax.h"
#include "richtext/flat_text.h"

namespace QZCore {

/// How long a part is about. Where no cut is possible it is longer.
inline constexpr std::size_t kNotePartLength = std::size_t{1} << 16;

/// The last position of `text`, the start of a part, at which the part may end;
/// 0 when there is none.
///
/// A cut lies behind a blank line. The line before it ends with, and the line
/// behind it starts with, a character that no pass removes or takes for a list
/// marker. No code block, link text or link target is open there, not even one
/// that the removal of code fences would open.
[[nodiscard]] std::size_t lastCut(StringView text);

/// Where a note comes from.
class NoteSource {
public:
    virtual ~NoteSource() = default;
    [[nodiscard]] virtual std::size_t length() const = 0;
    /// The attributes of the first character.
    [[nodiscard]] virtual TextAttributes firstAttributes() const = 0;
    /// The part in `range`, as far as there is one, numbered by `palette`.
    [[nodiscard]] virtual FlatText part(Range range, AttributePalette palette) const = 0;
};

/// The parts of a note, the first ones first. Their runs are numbered by
/// `palette`. With a link pattern of the user, whose matches may reach
/// anywhere, the note is one part.
[[nodiscard]] std::vector<FlatText> notePartsOf(const NoteSource& note,
                                                const MarkdownSyntax& syntax,
                                                AttributePalette& palette,
                                                std::size_t partLength = kNotePartLength);

}  // namespace QZCore
