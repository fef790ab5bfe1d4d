// A rich text laid out flat: one contiguous text and its runs. Work that walks
// a whole text is done on this form and put back at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "QZCore/richtext/rich_text.h"
#include "richtext/attribute_palette.h"

namespace QZCore {

/// Where a run ends, and the number of its attributes.
struct FlatRun {
    std::uint32_t end = 0;
    std::uint32_t id = 0;

    friend bool operator==(const FlatRun&, const FlatRun&) = default;
};

/// Runs that partition a stretch of text, and the numbered attribute sets.
struct FlatRuns {
    std::vector<FlatRun> runs;
    AttributePalette palette;
};

/// Text with its runs.
struct FlatText : FlatRuns {
    String text;
};

/// Texts of this many units and more have no flat form; their runs would not
/// fit 32-bit positions.
inline constexpr std::size_t kFlatTextLimit = UINT32_MAX;

/// Whether a text of that length is not empty and has a flat form.
[[nodiscard]] constexpr bool hasFlatForm(std::size_t length) {
    return length > 0 && length < kFlatTextLimit;
}

/// The way between both forms.
struct FlatTextAccess {
    /// The part of `text` in `range`, which must be shorter than the limit. Its
    /// sets are added to `palette`.
    [[nodiscard]] static FlatText flattened(const RichText& text, Range range,
                                            AttributePalette palette = {});
    /// The runs alone of that part.
    [[nodiscard]] static FlatRuns flattenedRuns(const RichText& text, Range range,
                                                AttributePalette palette = {});
    /// Gives the units from `location` on the attributes of `runs`, which must
    /// end within the text, as one edit.
    static void replaceRuns(RichText& text, std::size_t location, const FlatRuns& runs);
    /// Replaces the whole contents of `text` by `parts`, all numbered by
    /// `palette`, as one edit.
    static void replaceContents(RichText& text, std::vector<FlatText> parts,
                                AttributePalette palette);
};

/// Adds a run to `runs`, or lets the last one grow when it has the same
/// attributes. An empty run adds nothing.
inline void appendRun(std::vector<FlatRun>& runs, std::uint32_t end, std::uint32_t id) {
    const std::uint32_t start = runs.empty() ? 0 : runs.back().end;
    if (end == start) return;
    if (!runs.empty() && runs.back().id == id) {
        runs.back().end = end;
    } else {
        runs.push_back({end, id});
    }
}

}  // namespace QZCore
