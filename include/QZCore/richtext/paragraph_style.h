// Paragraph styles: alignment, spacing, indents, tab stops and lists of a
// paragraph of rich text. All lengths are in points.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "QZCore/color/color.h"
#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/richtext/text_lists.h"

namespace QZCore {

/// How the lines of a paragraph are set. The numbers are stored in style
/// dictionaries.
enum class TextAlignment : std::uint8_t {
    Left = 0,
    Right = 1,
    Center = 2,
    Justified = 3,
    Natural = 4,  // left or right, as the writing direction says
};

/// The alignment with the stored number `code`; natural for any other number.
[[nodiscard]] constexpr TextAlignment textAlignmentForCode(std::int64_t code) {
    return code >= 0 && code <= 4 ? static_cast<TextAlignment>(code) : TextAlignment::Natural;
}

/// The direction in which a paragraph runs.
enum class WritingDirection : std::int8_t { Natural = -1, LeftToRight = 0, RightToLeft = 1 };

/// A position to which a tab character leads.
struct TextTab {
    /// Which side of the text stands at the position.
    TextAlignment alignment = TextAlignment::Natural;
    /// The distance from the margin.
    double location = 0;

    /// Exact comparison of both fields.
    friend bool operator==(const TextTab&, const TextTab&) = default;
};

/// A box that a paragraph stands in.
struct TextBlock {
    /// The distance between the box and its text.
    double padding = 0;
    /// The distance around the box.
    double margin = 0;
    /// What fills the box.
    std::optional<Color> backgroundColor;

    /// Exact comparison of all fields.
    friend bool operator==(const TextBlock&, const TextBlock&) = default;
};

/// The style of a paragraph. A style with all defaults is the default
/// paragraph style.
struct ParagraphStyle {
    /// Where lines stand between the margins.
    TextAlignment alignment = TextAlignment::Natural;
    /// The least height of a line; 0 means none is asked for.
    double minimumLineHeight = 0;
    /// The greatest height of a line; 0 means no limit.
    double maximumLineHeight = 0;
    /// A factor on the natural line height; 0 means none.
    double lineHeightMultiple = 0;
    /// Extra space between lines.
    double lineSpacing = 0;
    /// Space before the paragraph.
    double paragraphSpacingBefore = 0;
    /// Space after the paragraph.
    double paragraphSpacing = 0;
    /// The indent of all lines but the first.
    double headIndent = 0;
    /// The indent of the first line.
    double firstLineHeadIndent = 0;
    /// Where lines end: from the leading margin when positive, from the
    /// trailing margin when 0 or negative.
    double tailIndent = 0;
    /// Natural follows the first letter.
    WritingDirection baseWritingDirection = WritingDirection::Natural;
    /// Tab stops in order of location.
    std::vector<TextTab> tabStops = {};
    /// The lists around the paragraph, outermost first.
    TextLists textLists = {};
    /// The boxes around the paragraph, outermost first.
    std::vector<TextBlock> textBlocks = {};

    /// Exact comparison of all fields.
    friend bool operator==(const ParagraphStyle&, const ParagraphStyle&) = default;
};

/// A number that is the same for equal styles.
[[nodiscard]] QZ_EXPORT std::size_t hashOf(const ParagraphStyle& style);

/// The fields that differ from the default style, for people and logs.
[[nodiscard]] QZ_EXPORT String descriptionOf(const ParagraphStyle& style);

}  // namespace QZCore
