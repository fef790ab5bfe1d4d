// Paragraph styles in archives.

#include "QZCore/richtext/paragraph_style.h"
#include "model/content_reader.h"
#include "richtext/archived_attributes.h"

namespace QZCore {
namespace {

/// A length of a style under its key. Stored in documents.
struct Length {
    StringView key;
    double ParagraphStyle::*field;
};

constexpr Length kLengths[] = {
    {u"minimumLineHeight", &ParagraphStyle::minimumLineHeight},
    {u"maximumLineHeight", &ParagraphStyle::maximumLineHeight},
    {u"lineHeightMultiple", &ParagraphStyle::lineHeightMultiple},
    {u"lineSpacing", &ParagraphStyle::lineSpacing},
    {u"paragraphSpacingBefore", &ParagraphStyle::paragraphSpacingBefore},
    {u"paragraphSpacing", &ParagraphStyle::paragraphSpacing},
    {u"headIndent", &ParagraphStyle::headIndent},
    {u"firstLineHeadIndent", &ParagraphStyle::firstLineHeadIndent},
    {u"tailIndent", &ParagraphStyle::tailIndent},
};

Value boxedOrAbsent(const std::optional<Color>& color) {
    return color ? Value::boxed(*color) : Value();
}

// The arrays hold the fields of tab stops and blocks one after the other.

void encodeStyle(const ParagraphStyle& style, ArchiveEncoder& coder) {
    coder.encodeContent(static_cast<int>(style.alignment), u"alignment");
    for (const Length& length : kLengths) coder.encodeContent(style.*length.field, length.key);
    coder.encodeContent(static_cast<int>(style.baseWritingDirection), u"baseWritingDirection");
    Array tabs;
    for (const TextTab& tab : style.tabStops) {
        tabs.push_back(static_cast<int>(tab.alignment));
        tabs.push_back(tab.location);
    }
    coder.encodeContent(std::move(tabs), u"tabStops");
    Array lists;
    for (const TextList& list : style.textLists.lists()) lists.push_back(list.markerFormat);
    coder.encodeContent(std::move(lists), u"textLists");
    Array blocks;
    for (const TextBlock& block : style.textBlocks) {
        blocks.push_back(block.padding);
        blocks.push_back(block.margin);
        blocks.push_back(boxedOrAbsent(block.backgroundColor));
    }
    coder.encodeContent(std::move(blocks), u"textBlocks");
}

std::vector<TextTab> tabStopsIn(const Array& fields) {
    std::vector<TextTab> tabs;
    for (std::size_t i = 0; i + 1 < fields.size(); i += 2) {
        tabs.push_back(
            {textAlignmentForCode(fields[i].integerValue()), fields[i + 1].doubleValue()});
    }
    return tabs;
}

TextLists textListsIn(const Array& formats) {
    TextLists lists;
    for (const Value& format : formats) lists = lists.with({format.stringValue()});
    return lists;
}

std::vector<TextBlock> textBlocksIn(const Array& fields) {
    std::vector<TextBlock> blocks;
    for (std::size_t i = 0; i + 2 < fields.size(); i += 3) {
        TextBlock& block = blocks.emplace_back();
        block.padding = fields[i].doubleValue();
        block.margin = fields[i + 1].doubleValue();
        if (const Color* color = fields[i + 2].boxedValue<Color>()) block.backgroundColor = *color;
    }
    return blocks;
}

std::optional<ParagraphStyle> decodeStyle(ArchiveDecoder& coder) {
    ContentReader from(coder);
    ParagraphStyle style;
    style.alignment = textAlignmentForCode(from.integer(u"alignment", INT64_MIN, INT64_MAX));
    for (const Length& length : kLengths) style.*length.field = from.real(length.key);
    style.baseWritingDirection =
        static_cast<WritingDirection>(from.integer(u"baseWritingDirection", -1, 1));
    style.tabStops = tabStopsIn(from.array(u"tabStops"));
    style.textLists = textListsIn(from.array(u"textLists"));
    style.textBlocks = textBlocksIn(from.array(u"textBlocks"));
    return from.ifRight(std::move(style));
}

}  // namespace

ArchivedClass archivedParagraphStyle() {
    return archivedBox<ParagraphStyle, encodeStyle, decodeStyle>(u"ParagraphStyle",
                                                                 {archivedColor()});
}

}  // namespace QZCore
