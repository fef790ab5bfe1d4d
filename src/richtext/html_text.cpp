#include "richtext/html_text.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "QZCore/richtext/font_manager.h"
#include "richtext/attribute_names.h"
#include "richtext/item_indents.h"

namespace QZCore {
namespace {

constexpr char16_t kLineSeparator = u'\u2028';
constexpr StringView kBlanks = u" \t\n\f";

/// Black text, and text of no chosen colour, follows the application.
TextAttributes withReadableColor(const TextAttributes& attributes) {
    const Color* color = attributes.foregroundColor();
    if (color != nullptr && !color->isBlackColor()) return attributes;
    return attributes.withAttribute(attributeNames().foregroundColor,
                                    Value::boxed(Color::textColor()));
}

/// Numbers paragraph styles.
class StyleNumbers {
public:
    [[nodiscard]] std::uint32_t numberOf(const ParagraphStyle& style) {
        if (last_ != nullptr && style == last_->first) return last_->second;
        const auto next = static_cast<std::uint32_t>(values_.size());
        const auto [known, isNew] = numbers_.try_emplace(style, next);
        if (isNew) values_.push_back(style == ParagraphStyle() ? Value() : Value::boxed(style));
        last_ = &*known;
        return known->second;
    }

    [[nodiscard]] const Value& value(std::uint32_t number) const { return values_[number]; }

private:
    struct Hash {
        std::size_t operator()(const ParagraphStyle& style) const { return hashOf(style); }
    };
    using Numbers = std::unordered_map<ParagraphStyle, std::uint32_t, Hash>;

    std::vector<Value> values_;
    Numbers numbers_;
    const Numbers::value_type* last_ = nullptr;
};

/// The room of the markers of lists: one for all items of a list.
class MarkerWidths {
public:
    /// That of `list`, of which `item` is the first one seen.
    [[nodiscard]] double widthFor(const HtmlList& list, const HtmlItem& item) {
        const auto [known, isNew] = byList_.try_emplace(item.list);
        if (isNew) known->second = widthOf(sampleOf(list, item), item.attributes);
        return known->second;
    }

private:
    struct Hash {
        std::size_t operator()(const TextAttributes& attributes) const { return attributes.hash(); }
    };

    [[nodiscard]] static String sampleOf(const HtmlList& list, const HtmlItem& item) {
        constexpr std::size_t kMostItems = 99;  // numbers have no more digits than for so many
        if (!list.isNumbered) return item.marker;
        const auto greatest = static_cast<std::size_t>(list.greatest);
        return widestItemNumber(std::min(std::max(list.items, greatest), kMostItems));
    }

    [[nodiscard]] double widthOf(const String& sample, const TextAttributes& attributes) {
        const auto [known, isNew] = bySample_[attributes].try_emplace(sample);
        if (isNew) {
            const Font* font = attributes.font();
            known->second = std::ceil(
                FontManager::shared().widthOfText(sample, font == nullptr ? Font{} : *font));
        }
        return known->second;
    }

    std::unordered_map<std::size_t, double> byList_;
    std::unordered_map<TextAttributes, std::unordered_map<String, double>, Hash> bySample_;
};

/// What an item and the paragraphs below it in the item need.
void applyList(ParagraphStyle& style, const HtmlList& list, double markerWidth, bool hasMarker) {
    const double indent = style.headIndent;
    ItemIndents().apply(style, static_cast<double>(list.depth), markerWidth);
    if (hasMarker) {
        for (TextTab& tab : style.tabStops) tab.location += indent;
    } else {
        style.firstLineHeadIndent += style.headIndent;
    }
    style.headIndent += indent;
    style.textLists = list.around;
}

}  // namespace

void HtmlText::append(StringView text, std::uint32_t id) {
    text_ += text;
    appendRun(runs_, static_cast<std::uint32_t>(text_.size()), id);
}

void HtmlText::open(const HtmlPlace& place) {
    if (!paragraphs_.empty()) {
        append(u"\n", endId_);
        paragraphs_.back().end = static_cast<std::uint32_t>(text_.size());
    }
    endId_ = palette_.idOf(place.attributes);
    paragraphs_.push_back({0, paragraphStyleOf(place.block), place.item});
    isOpen_ = isLineStart_ = true;
    hasSpace_ = false;
    if (place.item == nullptr) return;
    if (!place.item->isMarked) {
        append(u"\t" + place.item->marker + u"\t", palette_.idOf(place.item->attributes));
        paragraphs_.back().style.firstLineHeadIndent = 0;
        paragraphs_.back().hasMarker = true;
        place.item->isMarked = true;
    }
}

/// Splits at a line end that white space keeps: the space around the block
/// stands around its first and its last line.
void HtmlText::splitParagraph() {
    append(u"\n", endId_);
    Paragraph next = paragraphs_.back();
    paragraphs_.back().end = static_cast<std::uint32_t>(text_.size());
    paragraphs_.back().style.paragraphSpacing = 0;
    next.style.paragraphSpacingBefore = 0;
    if (std::exchange(next.hasMarker, false))
        next.style.firstLineHeadIndent = next.style.headIndent;
    paragraphs_.push_back(std::move(next));
}

void HtmlText::writeLineEnds(std::size_t count, std::uint32_t id) {
    for (const char16_t end : StringView(lineEnds_).substr(0, count)) {
        if (end == u'\n') {
            splitParagraph();
        } else {
            append(StringView(&end, 1), id);
        }
    }
    lineEnds_.clear();
}

/// What was put off until there is more to show.
void HtmlText::writePending(const HtmlPlace& place, std::uint32_t id) {
    if (!isOpen_) open(place);
    writeLineEnds(lineEnds_.size(), id);
    append(String(std::exchange(tabs_, 0), u'\t'), id);
    if (std::exchange(hasSpace_, false)) append(u" ", spaceId_);
    isLineStart_ = false;
}

void HtmlText::addText(StringView text, HtmlSpace space, const HtmlPlace& place,
                       const TextAttributes& attributes) {
    const std::uint32_t id = palette_.idOf(attributes);
    if (space == HtmlSpace::Keep) {
        addKept(text, place, id);
    } else {
        addCollapsed(text, space == HtmlSpace::KeepLines, place, id);
    }
}

void HtmlText::addKept(StringView text, const HtmlPlace& place, std::uint32_t id) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(u'\n'), text.size());
        if (end > 0) {
            writePending(place, id);
            append(text.substr(0, end), id);
        }
        if (end < text.size()) addLineEnd(u'\n', place);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void HtmlText::addCollapsed(StringView text, bool keepsLines, const HtmlPlace& place,
                            std::uint32_t id) {
    while (!text.empty()) {
        const std::size_t word = std::min(text.find_first_of(kBlanks), text.size());
        if (word > 0) {
            writePending(place, id);
            append(text.substr(0, word), id);
            text.remove_prefix(word);
            continue;
        }
        const std::size_t blanks = std::min(text.find_first_not_of(kBlanks), text.size());
        const auto ends = std::ranges::count(text.substr(0, blanks), u'\n');
        text.remove_prefix(blanks);
        if (keepsLines && ends > 0) {
            for (auto i = ends; i > 0; --i) addLineEnd(u'\n', place);
        } else if (isOpen_ && !isLineStart_ && !hasSpace_) {
            hasSpace_ = true;
            spaceId_ = id;
        }
    }
}

void HtmlText::addLineEnd(char16_t end, const HtmlPlace& place) {
    if (!isOpen_) open(place);
    lineEnds_ += end;
    hasSpace_ = false;
    isLineStart_ = true;
}

void HtmlText::breakLine(const HtmlPlace& place) { addLineEnd(kLineSeparator, place); }

void HtmlText::addAttachment(const HtmlPlace& place, const TextAttributes& attributes) {
    const std::uint32_t id = palette_.idOf(attributes);
    writePending(place, id);
    append(StringView(&kAttachmentCharacter, 1), id);
}

/// A line end that nothing follows in the paragraph shows no line.
void HtmlText::endParagraph() {
    if (tabs_ > 0 || !isOpen_) return;
    if (!lineEnds_.empty()) {
        writeLineEnds(lineEnds_.size() - 1, endId_);
    }
    isOpen_ = hasSpace_ = false;
    isLineStart_ = true;
}

void HtmlText::addSpaceAfter(double points) {
    endParagraph();
    if (paragraphs_.empty()) return;
    double& space = paragraphs_.back().style.paragraphSpacing;
    space = std::max(space, points);
}

void HtmlText::addEmptyParagraph(const HtmlPlace& place) {
    endParagraph();
    open(place);
    endParagraph();
}

void HtmlText::startRow() {
    endRow();
    isInRow_ = true;
    rowStart_ = paragraphs_.size();
}

/// A cell goes on with the paragraph that the one before has ended with.
void HtmlText::startCell() {
    if (!isInRow_ || std::exchange(isFirstCell_, false)) return endParagraph();
    hasSpace_ = false;
    isLineStart_ = true;
    isOpen_ = paragraphs_.size() > rowStart_;
    ++tabs_;
}

void HtmlText::endRow() {
    tabs_ = 0;
    endParagraph();
    isInRow_ = false;
    isFirstCell_ = true;
}

FlatText HtmlText::inParagraphStyles(const std::vector<HtmlList>& lists,
                                     AttributePalette& palette) {
    FlatText flat;
    StyleNumbers styles;
    std::unordered_map<std::uint64_t, std::uint32_t> ids;  // by style and attributes
    const auto idFor = [&](std::uint64_t style, std::uint32_t id) {
        const auto [at, isNew] = ids.try_emplace(style << 32 | id);
        if (isNew) {
            const Value& paragraphStyle = styles.value(static_cast<std::uint32_t>(style));
            at->second = palette.idOf(withReadableColor(
                palette_.at(id).withAttribute(attributeNames().paragraphStyle, paragraphStyle)));
        }
        return at->second;
    };
    MarkerWidths widths;
    std::uint32_t start = 0;
    std::size_t run = 0;
    for (Paragraph& paragraph : paragraphs_) {
        if (const HtmlItem* item = paragraph.item) {
            const HtmlList& list = lists[item->list];
            applyList(paragraph.style, list, widths.widthFor(list, *item), paragraph.hasMarker);
        }
        const std::uint64_t style = styles.numberOf(paragraph.style);
        for (; start < paragraph.end; start = std::min(runs_[run].end, paragraph.end)) {
            while (runs_[run].end <= start) ++run;
            appendRun(flat.runs, std::min(runs_[run].end, paragraph.end),
                      idFor(style, runs_[run].id));
        }
    }
    flat.text = std::move(text_);
    return flat;
}

RichText HtmlText::take(const std::vector<HtmlList>& lists) {
    endRow();
    if (!paragraphs_.empty()) {
        // Without an end of its own an empty paragraph would not be one.
        const std::size_t start =
            paragraphs_.size() > 1 ? paragraphs_[paragraphs_.size() - 2].end : 0;
        if (text_.size() == start) append(u"\n", endId_);
        paragraphs_.back().end = static_cast<std::uint32_t>(text_.size());
    }
    AttributePalette palette;
    std::vector<FlatText> parts;
    parts.push_back(inParagraphStyles(lists, palette));
    RichText text;
    if (!parts.front().text.empty()) {
        FlatTextAccess::replaceContents(text, std::move(parts), std::move(palette));
    }
    return text;
}

}  // namespace QZCore
