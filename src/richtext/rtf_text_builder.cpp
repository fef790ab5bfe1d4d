#include "richtext/rtf_text_builder.h"

#include <algorithm>
#include <utility>

#include "foundation/hash.h"
#include "richtext/attribute_names.h"
#include "richtext/rtf_units.h"

namespace QZCore {
namespace {

void setLineHeights(const RtfParagraph& paragraph, ParagraphStyle& style) {
    const double height = paragraph.lineHeight;
    if (paragraph.lineHeightIsMultiple) {
        style.lineHeightMultiple = std::max(height, 0.0) / kPartsOfALine;
    } else {
        style.minimumLineHeight = std::abs(height) / kTwipsPerPoint;
        if (height < 0) style.maximumLineHeight = style.minimumLineHeight;
    }
    if (paragraph.least > 0) style.minimumLineHeight = paragraph.least / kTwipsPerPoint;
    if (paragraph.most > 0) style.maximumLineHeight = paragraph.most / kTwipsPerPoint;
}

bool isBullet(StringView marker) {
    return marker == StringView(&kFilledBullet, 1) || marker == StringView(&kOpenBullet, 1);
}

/// What a marker of an unknown list is: a bullet when it is one character that
/// counts nothing.
RtfNumbering numberingOfMarker(StringView marker) {
    const char16_t unit = marker.front();
    const char16_t lower = unit | 0x20;
    const bool counts = (unit >= u'0' && unit <= u'9') || (lower >= u'a' && lower <= u'z');
    return marker.size() == 1 && !counts ? RtfNumbering::Bullet : RtfNumbering::Decimal;
}

/// The marker of an item at `level` that is written as `marker`.
String markerAt(std::int32_t level, RtfNumbering numbering, String marker) {
    if (numbering != RtfNumbering::Bullet || isBullet(marker)) return marker;
    const bool isEvenLevel = level % 2 != 0;  // they count from 0
    return String(1, isEvenLevel ? kOpenBullet : kFilledBullet);
}

}  // namespace

std::size_t RtfTextBuilder::Hash::operator()(const RtfCharacter& c) const {
    std::size_t seed = c.link;
    for (const std::int32_t field :
         {c.font, c.halfPoints, c.underline, c.strikethrough, c.foreground, c.background,
          c.underlineColor, c.superscript, c.offset}) {
        seed = hashCombine(seed, static_cast<std::size_t>(field));
    }
    return hashCombine(seed, (c.isBold ? 1U : 0U) | (c.isItalic ? 2U : 0U));
}

void RtfTextBuilder::append(StringView text, const RtfCharacter& character) {
    text_.text += text;
    appendRun(open_, static_cast<std::uint32_t>(text_.text.size()), lookOf(character));
}

void RtfTextBuilder::append(const TextAttachment& attachment, const RtfCharacter& character) {
    looks_.push_back(attributesOf(character).withAttribute(attributeNames().attachment,
                                                           Value::boxed(attachment)));
    text_.text += kAttachmentCharacter;
    appendRun(open_, static_cast<std::uint32_t>(text_.text.size()),
              static_cast<std::uint32_t>(looks_.size() - 1));
}

void RtfTextBuilder::removeLastTab() {
    if (open_.empty() || text_.text.back() != u'\t') return;
    text_.text.pop_back();
    const std::size_t start = open_.size() > 1     ? open_[open_.size() - 2].end
                              : text_.runs.empty() ? 0
                                                   : text_.runs.back().end;
    if (--open_.back().end == start) open_.pop_back();
}

void RtfTextBuilder::setMarker(StringView marker, const RtfCharacter& character) {
    marker_ = {String(marker), lookOf(character)};
}

void RtfTextBuilder::endParagraph(const RtfParagraph& paragraph, const RtfCharacter& character) {
    append(u"\n", character);
    closeParagraph(paragraph);
}

RichText RtfTextBuilder::finish(const RtfParagraph& paragraph) {
    closeParagraph(paragraph);
    RichText result;
    if (text_.text.empty()) return result;
    AttributePalette palette = std::move(text_.palette);
    std::vector<FlatText> parts;
    parts.push_back(std::move(text_));
    FlatTextAccess::replaceContents(result, std::move(parts), std::move(palette));
    return result;
}

/// The number of the attributes that `character` asks for.
std::uint32_t RtfTextBuilder::lookOf(const RtfCharacter& character) {
    if (lastLook_ != UINT32_MAX && character == lastCharacter_) return lastLook_;
    const auto next = static_cast<std::uint32_t>(looks_.size());
    const auto [at, isNew] = lookNumbers_.try_emplace(character, next);
    if (isNew) looks_.push_back(attributesOf(character));
    lastCharacter_ = character;
    lastLook_ = at->second;
    return lastLook_;
}

TextAttributes RtfTextBuilder::attributesOf(const RtfCharacter& character) const {
    const AttributeNames& names = attributeNames();
    std::vector<TextAttribute> attributes;
    const auto addNumber = [&](const AttributeName& name, std::int32_t number) {
        if (number != 0) attributes.push_back({name, number});
    };
    const auto addColor = [&](const AttributeName& name, std::int32_t number) {
        const std::optional<Color>& color = definitions_.colors.at(number);
        if (color) attributes.push_back({name, Value::boxed(*color)});
    };
    if (const auto font = definitions_.fonts.fontOf(character)) {
        attributes.push_back({names.font, Value::boxed(*font)});
    }
    addColor(names.foregroundColor, character.foreground);
    if (character.background != 0) addColor(names.backgroundColor, character.background);
    addNumber(names.underlineStyle, character.underline);
    if (character.underline != 0 && character.underlineColor != 0) {
        addColor(NSUnderlineColorAttributeName, character.underlineColor);
    }
    addNumber(names.strikethroughStyle, character.strikethrough);
    addNumber(NSSuperscriptAttributeName, character.superscript);
    if (character.offset != 0) {
        attributes.push_back({NSBaselineOffsetAttributeName, character.offset / kHalfPoints});
    }
    if (character.link != 0) {
        attributes.push_back({names.link, definitions_.links[character.link - 1]});
    }
    return TextAttributes(std::move(attributes));
}

ParagraphStyle RtfTextBuilder::styleOf(const RtfParagraph& paragraph) const {
    ParagraphStyle style = paragraph.style;
    style.headIndent = paragraph.indent / kTwipsPerPoint;
    style.firstLineHeadIndent = (paragraph.indent + paragraph.firstIndent) / kTwipsPerPoint;
    setLineHeights(paragraph, style);
    const std::optional<Color>& fill = definitions_.colors.at(paragraph.fill);
    const bool isFilled = paragraph.fill != 0 && fill.has_value();
    if (isFilled || paragraph.padding > 0) {
        style.textBlocks = {{.padding = std::max(paragraph.padding, 0) / kTwipsPerPoint,
                             .backgroundColor = isFilled ? fill : std::nullopt}};
    }
    return style;
}

/// The style of an item whose paragraph looks like `style`.
ParagraphStyle RtfTextBuilder::itemStyleOf(const RtfParagraph& paragraph,
                                           ParagraphStyle style) const {
    const auto& levels = definitions_.lists.levelsOf(paragraph.list);
    const auto level = static_cast<std::size_t>(paragraph.level);
    if (level < levels.size() && paragraph.indent == 0) {
        style.headIndent = levels[level].indent / kTwipsPerPoint;
        style.firstLineHeadIndent =
            (levels[level].indent + levels[level].firstIndent) / kTwipsPerPoint;
    }
    for (std::size_t above = 0; above < level; ++above) {
        const bool isKnown = above < levels.size();
        const StringView format = isKnown ? markerFormatOf(levels[above].numbering) : kDiscFormat;
        style.textLists = style.textLists.with({String(format)});
    }
    styleAsListItem(style);
    return style;
}

/// Puts the marker at the start of the open paragraph.
void RtfTextBuilder::insertMarker(const RtfParagraph& paragraph) {
    const auto& levels = definitions_.lists.levelsOf(paragraph.list);
    const auto level = static_cast<std::size_t>(paragraph.level);
    const bool isKnown = level < levels.size();
    const auto numbering = isKnown ? static_cast<RtfNumbering>(levels[level].numbering)
                                   : numberingOfMarker(marker_.text);
    const String units = u"\t" + markerAt(paragraph.level, numbering, marker_.text) + u"\t";
    const std::size_t start = text_.runs.empty() ? 0 : text_.runs.back().end;
    text_.text.insert(start, units);
    const auto length = static_cast<std::uint32_t>(units.size());
    std::vector<FlatRun> runs{{static_cast<std::uint32_t>(start) + length, marker_.look}};
    for (const FlatRun& run : open_) appendRun(runs, run.end + length, run.id);
    open_ = std::move(runs);
}

std::size_t RtfTextBuilder::numberOf(const ParagraphStyle& style) {
    const auto [at, isNew] = paragraphNumbers_.try_emplace(style, paragraphs_.size());
    if (isNew) {
        const bool isDefault = style == ParagraphStyle();
        paragraphs_.push_back({isDefault ? Value() : Value::boxed(style), {}});
    }
    return at->second;
}

void RtfTextBuilder::closeParagraph(const RtfParagraph& paragraph) {
    const bool isItem = !marker_.text.empty();
    if (isItem) insertMarker(paragraph);
    const bool isKnown =
        lastNumber_ != SIZE_MAX && isItem == lastWasItem_ && paragraph == lastParagraph_;
    if (!isKnown) {
        const ParagraphStyle style = styleOf(paragraph);
        lastNumber_ = numberOf(isItem ? itemStyleOf(paragraph, style) : style);
        lastParagraph_ = paragraph;
        lastWasItem_ = isItem;
    }
    Paragraph& look = paragraphs_[lastNumber_];
    for (const FlatRun& run : open_) {
        const std::uint32_t id = look.ids(run.id, [&](std::uint32_t number) {
            const TextAttributes& before = looks_[number];
            return text_.palette.idOf(
                before.withAttribute(attributeNames().paragraphStyle, look.style));
        });
        appendRun(text_.runs, run.end, id);
    }
    open_.clear();
    marker_ = {};
}

}  // namespace QZCore
