// The text of an RTF document, paragraph by paragraph.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "QZCore/richtext/rich_text.h"
#include "richtext/flat_text.h"
#include "richtext/number_map.h"
#include "richtext/rtf_definitions.h"

namespace QZCore {

/// Puts a text together. The look of a paragraph is known at its end.
class RtfTextBuilder {
public:
    /// Numbers are looked up in `definitions`, which must outlive this.
    explicit RtfTextBuilder(const RtfDefinitions& definitions) : definitions_(definitions) {}

    void append(StringView text, const RtfCharacter& character);
    void append(const TextAttachment& attachment, const RtfCharacter& character);
    /// Removes the tab that the open paragraph ends with, if it does.
    void removeLastTab();
    /// Makes the open paragraph an item with this marker.
    void setMarker(StringView marker, const RtfCharacter& character);
    /// Ends the open paragraph with a line feed.
    void endParagraph(const RtfParagraph& paragraph, const RtfCharacter& character);
    /// The text, with `paragraph` as the look of the one that is open.
    [[nodiscard]] RichText finish(const RtfParagraph& paragraph);

private:
    struct Marker {
        String text;
        std::uint32_t look = 0;
    };
    /// A paragraph style, and the numbers of attributes with it put in.
    struct Paragraph {
        Value style;
        NumberMap ids;
    };
    struct Hash {
        std::size_t operator()(const RtfCharacter& character) const;
        std::size_t operator()(const ParagraphStyle& style) const { return hashOf(style); }
    };

    [[nodiscard]] std::uint32_t lookOf(const RtfCharacter& character);
    [[nodiscard]] TextAttributes attributesOf(const RtfCharacter& character) const;
    [[nodiscard]] ParagraphStyle styleOf(const RtfParagraph& paragraph) const;
    [[nodiscard]] std::size_t numberOf(const ParagraphStyle& style);
    [[nodiscard]] ParagraphStyle itemStyleOf(const RtfParagraph& paragraph,
                                             ParagraphStyle style) const;
    void insertMarker(const RtfParagraph& paragraph);
    void closeParagraph(const RtfParagraph& paragraph);

    const RtfDefinitions& definitions_;
    FlatText text_;
    std::vector<FlatRun> open_;  // of the open paragraph, by the numbers of looks
    Marker marker_;
    std::vector<TextAttributes> looks_;
    std::unordered_map<RtfCharacter, std::uint32_t, Hash> lookNumbers_;
    RtfCharacter lastCharacter_;
    std::uint32_t lastLook_ = UINT32_MAX;
    std::vector<Paragraph> paragraphs_;
    std::unordered_map<ParagraphStyle, std::size_t, Hash> paragraphNumbers_;
    RtfParagraph lastParagraph_;
    std::size_t lastNumber_ = SIZE_MAX;
    bool lastWasItem_ = false;
};

}  // namespace QZCore
