// What holds within a group of an RTF document.
#pragma once

#include <cstdint>
#include <memory>

#include "QZCore/richtext/paragraph_style.h"

namespace QZCore {

/// Where text goes.
enum class RtfDestination : std::uint8_t {
    Body,
    Skipped,
    Around,        // that of the group around, or around the alternatives
    Alternatives,  // of which one is for readers with Unicode
    Field,
    FieldInstruction,
    FieldResult,
    FontTable,
    AlternativeFontName,
    ColorTable,
    ListTable,
    ListOverrideTable,
    ListLevelText,
    ListMarker,
    Picture,
    PictureProperties,
    PictureFile,
    PropertyName,
    PropertyValue,
};

/// The look of characters.
struct RtfCharacter {
    std::int32_t font = -1;  // a number of the font table, or none
    std::int32_t halfPoints = 0;
    std::int32_t underline = 0;
    std::int32_t strikethrough = 0;
    std::int32_t foreground = -1;  // a number of the colour table, or none
    std::int32_t background = 0;   // likewise; 0 is none for these two
    std::int32_t underlineColor = 0;
    std::int32_t superscript = 0;
    std::int32_t offset = 0;  // in half points
    std::uint32_t link = 0;   // a number that the reader gives; 0 is none
    bool isBold = false;
    bool isItalic = false;
    bool isHidden = false;

    friend bool operator==(const RtfCharacter&, const RtfCharacter&) = default;
};

/// The look of a paragraph.
struct RtfParagraph {
    /// What RTF says as rich text does, apart from what follows.
    ParagraphStyle style{};
    std::int32_t indent = 0;       // in twips, as all lengths here
    std::int32_t firstIndent = 0;  // counted from `indent`
    std::int32_t lineHeight = 0;   // or in 240ths of a line
    bool lineHeightIsMultiple = false;
    std::int32_t least = 0;
    std::int32_t most = 0;
    std::int32_t fill = 0;  // a number of the colour table
    std::int32_t padding = 0;
    std::int32_t list = 0;  // a number of the list override table; 0 is none
    std::int32_t level = 0;
    TextAlignment nextTab = TextAlignment::Natural;

    friend bool operator==(const RtfParagraph&, const RtfParagraph&) = default;
};

/// A group. A group within starts as a copy.
struct RtfGroup {
    RtfCharacter character{};
    /// Shared between groups until one changes it.
    std::shared_ptr<RtfParagraph> paragraph{};
    RtfDestination destination = RtfDestination::Body;
    bool startsDestination = false;
    /// Whether the group may be passed over when it is not known.
    bool isIgnorable = false;
    /// How many characters stand in for one of Unicode.
    std::int32_t standIns = 1;
    std::uint32_t field = 0;  // a number that the reader gives
};

}  // namespace QZCore
