// Items of lists, as rich text and as RTF have them.
//
// Rich text has the marker of an item as text: a tab, the marker, a tab. In
// RTF the reader draws it, so that the text of the marker stands in a group of
// its own, which only readers without lists show.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "QZCore/richtext/list_items.h"

namespace QZCore {

inline constexpr StringView kDiscFormat = u"{disc}";
inline constexpr StringView kDecimalFormat = u"{decimal}";

/// RTF numbers the levels of a list from 0 to this.
inline constexpr std::size_t kDeepestRtfLevel = 8;

/// What RTF calls the kind of a level's markers.
enum class RtfNumbering : std::uint8_t {
    Decimal = 0,
    UpperRoman = 1,
    LowerRoman = 2,
    UpperLetter = 3,
    LowerLetter = 4,
    Bullet = 23,
};

/// The kind of markers of `markerFormat`; bullets for one that is not known.
[[nodiscard]] RtfNumbering rtfNumberingOf(StringView markerFormat);
/// The marker format of a kind of markers; decimal for one that is not known.
[[nodiscard]] StringView markerFormatOf(std::int32_t numbering);

/// An item of a list in rich text.
struct RtfListItem {
    /// 0 for the items of the outermost list.
    std::size_t level = 0;
    /// The formats of the lists around the item, its own last. Empty for an
    /// item deeper than RTF has levels, of which only its own is known.
    std::vector<String> formats;
    String ownFormat;
    /// Between its tabs.
    String marker;
    /// The units of both tabs and the marker.
    std::size_t markerLength = 0;
    /// Where the marker ends, or starts when it is not set to the right.
    double markerStop = 0;
    bool isMarkerSetRight = false;
};

/// The item that `paragraph` is; nothing when it is none. Rendered lists name
/// the lists around an item and stops for marker and text; of texts from
/// elsewhere the innermost list is the item's own.
[[nodiscard]] std::optional<RtfListItem> rtfListItemIn(StringView paragraph,
                                                       const ParagraphStyle& style);

/// Gives an item read from RTF the style that rendered lists have: `style` has
/// its indents as RTF tells them.
void styleAsListItem(ParagraphStyle& style);

}  // namespace QZCore
