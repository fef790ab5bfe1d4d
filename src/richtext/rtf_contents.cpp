#include "richtext/rtf_contents.h"

#include <utility>

#include "richtext/rtf_code_pages.h"
#include "richtext/rtf_hyperlink.h"

namespace QZCore {

using enum RtfDestination;

void RtfContents::start(RtfDestination destination, RtfGroup& group) {
    group.destination = destination;
    group.startsDestination = true;
    switch (destination) {
        case Field:
            return startField(group);
        case FieldResult:
            return followLink(group);
        case ListMarker:
            return marker_.clear();
        case Picture:
        case PictureFile:
            return pictures_.start();
        case PropertyName:
            return pictures_.startProperty();
        case PropertyValue:
            return pictures_.startValue();
        default:
            return;
    }
}

void RtfContents::end(const RtfGroup& closed, const RtfGroup& group) {
    switch (closed.destination) {
        case ListMarker:
            return endMarker(group);
        case Picture:
            return showPicture(pictures_.finishEmbedded(), group);
        case PictureFile:
            return showPicture(pictures_.finishFile(), group);
        case PropertyValue:
            return pictures_.endProperty();
        default:
            return;
    }
}

bool RtfContents::takeWord(std::string_view name, RtfNumber number, const RtfGroup& group) {
    switch (group.destination) {
        case FontTable:
            definitions_.fonts.word(name, number);
            return true;
        case ColorTable:
            definitions_.colors.word(name, number);
            return true;
        case ListTable:
            definitions_.lists.word(name, number);
            return true;
        case ListOverrideTable:
            definitions_.lists.overrideWord(name, number);
            return true;
        case Picture:
        case PictureFile:
            pictures_.word(name, number);
            return true;
        default:
            return false;
    }
}

void RtfContents::receive(StringView text, const RtfGroup& group) {
    switch (group.destination) {
        case Body:
        case FieldResult:
            if (!group.character.isHidden) builder_.append(text, group.character);
            openParagraph_ = group.paragraph;
            return;
        case ListMarker:
            if (marker_.empty()) markerLook_ = group.character;
            marker_ += text;
            return;
        case FieldInstruction:
            if (group.field != 0) fields_[group.field - 1] += text;
            return;
        case FontTable:
            return definitions_.fonts.name(text);
        case AlternativeFontName:
            return definitions_.fonts.alternativeName(text);
        case ColorTable:
            return definitions_.colors.text(text);
        case Picture:
            return pictures_.hexadecimal(text);
        case PictureFile:
            return pictures_.fileName(text);
        case PropertyName:
            return pictures_.propertyName(text);
        case PropertyValue:
            return pictures_.propertyValue(text);
        default:
            return;
    }
}

void RtfContents::receiveBinary(std::string_view bytes, const RtfGroup& group) {
    if (group.destination == Picture) pictures_.binary(bytes);
}

void RtfContents::endParagraph(const RtfGroup& group) {
    const bool isMarker = group.destination == ListMarker;
    if (!isMarker && !isRtfText(group.destination)) return;
    if (group.character.isHidden) return;
    // Some programs write whole items where only their markers belong.
    if (isMarker) builder_.append(std::exchange(marker_, {}), markerLook_);
    builder_.endParagraph(*group.paragraph, group.character);
}

void RtfContents::endRow(const RtfGroup& group) {
    if (isRtfText(group.destination)) builder_.removeLastTab();
    endParagraph(group);
}

std::optional<std::int32_t> RtfContents::codePageIn(const RtfGroup& group) const {
    const bool isInTable =
        group.destination == FontTable || group.destination == AlternativeFontName;
    const RtfFonts& fonts = definitions_.fonts;
    return isInTable ? fonts.codePageOfTable() : fonts.codePageOf(group.character.font);
}

void RtfContents::startField(RtfGroup& group) {
    fields_.emplace_back();
    group.field = static_cast<std::uint32_t>(fields_.size());
}

/// The result of a field is a link when its instruction says so.
void RtfContents::followLink(RtfGroup& group) {
    if (group.field == 0) return;
    const Value link = linkOfInstruction(fields_[group.field - 1]);
    if (link.isAbsent()) return;
    definitions_.links.push_back(link);
    group.character.link = static_cast<std::uint32_t>(definitions_.links.size());
}

/// A marker in a font of symbols would look like letters in any other one.
void RtfContents::endMarker(const RtfGroup& group) {
    const StringView marker = trimmedOfWhitespace(marker_);
    if (marker.empty() || !isRtfText(group.destination)) return;
    const bool isSymbol = definitions_.fonts.codePageOf(markerLook_.font) == kSymbolCodePage;
    builder_.setMarker(marker, isSymbol ? group.character : markerLook_);
    openParagraph_ = group.paragraph;
}

void RtfContents::showPicture(const TextAttachment& picture, const RtfGroup& group) {
    if (!isRtfText(group.destination) || group.character.isHidden) return;
    if (picture.image == nullptr) return receive(picture.alternativeText, group);
    builder_.append(picture, group.character);
    openParagraph_ = group.paragraph;
}

}  // namespace QZCore
