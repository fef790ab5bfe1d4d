// Where the items of lists stand: a marker between two tabs, then the text.
#pragma once

#include <cstddef>

#include "QZCore/richtext/paragraph_style.h"

namespace QZCore {

/// The distances of a list in points.
struct ItemIndents {
    /// How many levels stand at the margin.
    double levelsAtMargin = 1;
    /// What each level is indented by, beside the room of the marker.
    double indention = 9;
    /// Between a marker and its text.
    double gap = 5;

    /// Puts the text of an item at `level`, the outermost 1, behind a marker of
    /// `markerWidth`. Markers of different widths end at the same place.
    void apply(ParagraphStyle& style, double level, double markerWidth) const;
};

/// The widest number that a list of so many items needs.
[[nodiscard]] String widestItemNumber(std::size_t items);

}  // namespace QZCore
