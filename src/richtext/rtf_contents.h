// What an RTF document contains, as its groups bring it.
#pragma once

#include <memory>
#include <vector>

#include "richtext/rtf_definitions.h"
#include "richtext/rtf_picture_reader.h"
#include "richtext/rtf_text_builder.h"

namespace QZCore {

/// Whether text that goes to `destination` is text of the document.
[[nodiscard]] constexpr bool isRtfText(RtfDestination destination) {
    return destination == RtfDestination::Body || destination == RtfDestination::FieldResult;
}

/// Brings text and words to the destination of their group.
class RtfContents {
public:
    /// The look of text before anything is said of it is that of `group`.
    RtfContents(const RtfSurroundings& surroundings, const RtfGroup& group)
        : pictures_(surroundings), openParagraph_(group.paragraph) {}

    /// `destination` starts in `group`.
    void start(RtfDestination destination, RtfGroup& group);
    /// `closed`, which started a destination, has ended within `group`.
    void end(const RtfGroup& closed, const RtfGroup& group);

    /// A control word, and whether it belongs to the destination alone.
    [[nodiscard]] bool takeWord(std::string_view name, RtfNumber number, const RtfGroup& group);
    /// Text.
    void receive(StringView text, const RtfGroup& group);
    /// Bytes that are no text.
    void receiveBinary(std::string_view bytes, const RtfGroup& group);
    /// The end of a paragraph.
    void endParagraph(const RtfGroup& group);
    /// The end of a row of cells, each of which has ended with a tab.
    void endRow(const RtfGroup& group);

    /// The code page of bytes in `group`; nothing for the document's own.
    [[nodiscard]] std::optional<std::int32_t> codePageIn(const RtfGroup& group) const;

    /// The text of the document.
    [[nodiscard]] RichText finish() { return builder_.finish(*openParagraph_); }

private:
    void startField(RtfGroup& group);
    void followLink(RtfGroup& group);
    void endMarker(const RtfGroup& group);
    void showPicture(const TextAttachment& picture, const RtfGroup& group);

    RtfDefinitions definitions_;
    RtfTextBuilder builder_{definitions_};
    RtfPictureReader pictures_;
    std::vector<String> fields_;  // their instructions
    String marker_;
    RtfCharacter markerLook_;
    std::shared_ptr<RtfParagraph> openParagraph_;  // of the last text or marker
};

}  // namespace QZCore
