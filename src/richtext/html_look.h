// How an element of HTML looks, as far as rich text can show it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "QZCore/richtext/paragraph_style.h"
#include "richtext/css_declarations.h"

namespace QZCore {

enum class HtmlDisplay : std::uint8_t { Inline, Block, ListItem, Row, Cell, None };
enum class HtmlSpace : std::uint8_t { Collapse, KeepLines, Keep };

/// What an element hands on to those within it.
struct HtmlInheritedLook {
    /// The family of the font; empty for the user's.
    std::shared_ptr<const String> family = {};
    double fontSize = 12;
    int weight = 400;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckThrough = false;
    int superscript = 0;
    double baselineOffset = 0;
    std::optional<Color> color = {};
    /// Not inherited in CSS; it shows through the elements within.
    std::optional<Color> background = {};
    TextAlignment alignment = TextAlignment::Natural;
    WritingDirection direction = WritingDirection::Natural;
    /// A length in points or a factor on the size of the font; 0 is natural.
    CssLength lineHeight = {0, CssUnit::Number};
    double textIndent = 0;
    /// Not inherited in CSS; blocks lie in each other.
    double leftIndent = 0;
    double rightIndent = 0;
    HtmlSpace space = HtmlSpace::Collapse;
    /// A word of "list-style-type"; empty for the usual one.
    std::shared_ptr<const String> listStyle = {};
    /// The target of the link.
    std::shared_ptr<const String> link = {};
    bool isHidden = false;
};

/// How an element looks. Lengths are in points.
struct HtmlLook : HtmlInheritedLook {
    HtmlDisplay display = HtmlDisplay::Inline;
    double spaceBefore = 0;
    double spaceAfter = 0;
    double minHeight = 0;
    double maxWidth = 0;
    double width = 0;
    double height = 0;
};

/// Elements by what the lengths around them do.
enum class HtmlBox : std::uint8_t {
    Block,  // they are those of its paragraphs
    List,   // its items have indents of their own; only the space behind counts
    Page,   // nothing: rich text has no page
};

/// What else the look of an element depends on.
struct HtmlLookContext {
    /// The size of the outermost element's font.
    double rootFontSize = 12;
    /// What lengths around the element are.
    HtmlBox box = HtmlBox::Block;
    /// Whether its background is that of a text and not of an area.
    bool isTextBlock = false;
};

/// The look that an element has within one of the look `around` by
/// `declarations`, the winning ones last.
[[nodiscard]] HtmlLook htmlLook(const HtmlLook& around,
                                const std::vector<const CssDeclaration*>& declarations,
                                const HtmlLookContext& context);

/// The paragraph style of text in a block of that look.
[[nodiscard]] ParagraphStyle paragraphStyleOf(const HtmlLook& look);

/// The style sheet of what HTML's elements mean.
[[nodiscard]] StringView htmlDefaultStyles();

}  // namespace QZCore
