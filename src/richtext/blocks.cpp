#include "QZCore/richtext/blocks.h"

#include <algorithm>
#include <array>

#include "richtext/paragraphs.h"

namespace QZCore {
namespace {

/// Headings have sizes of their own; these are where the next level begins.
int levelOfHeading(double pointSize) {
    constexpr std::array<double, 5> kLeastSizes{32, 24, 18, 16, 13};
    const auto* at =
        std::ranges::find_if(kLeastSizes, [&](double least) { return pointSize >= least; });
    return static_cast<int>(at - kLeastSizes.begin()) + 1;
}

/// The blanks at the start of a line.
std::size_t indentationOf(StringView line) {
    return std::min(line.find_first_not_of(u" \t"), line.size());
}

/// Whether a paragraph of an item ends its list by the space behind it.
bool hasSpaceBehind(const TextAttributes& attributes) {
    const ParagraphStyle* style = attributes.paragraphStyle();
    return style != nullptr && !style->tabStops.empty() && style->paragraphSpacing > 0;
}

bool isEmptyLine(const Block& block, Range line) {
    return block.kind == BlockKind::Paragraph && line.length == 0;
}

/// Whether `block` goes on with what `last` has begun: lines of code are one.
bool continues(const Block& last, const Block& block) {
    return last.kind == BlockKind::Code && block.kind == BlockKind::Code &&
           last.isQuoted == block.isQuoted && last.isInList == block.isInList;
}

/// Whether both lines have one paragraph style.
bool haveOneStyle(const RichText& text, Range a, Range b) {
    const auto styleOf = [&](Range line) {
        return text.attributesAtIndex(line.location).objectForKey(NSParagraphStyleAttributeName);
    };
    return styleOf(a) == styleOf(b);
}

}  // namespace

/// A paragraph, without the marker of an item.
struct BlockClassifier::Line {
    Range range;
    /// Its text.
    StringView units;
    /// The attributes that it starts with.
    TextAttributes attributes;

    void removePrefix(std::size_t length) {
        range = {range.location + length, range.length - length};
        units.remove_prefix(length);
    }
};

BlockClassifier::BlockClassifier(const TextAttributes& base) : base_(base) {}

bool BlockClassifier::isFixedWidth(const Font& font) {
    using Known = std::pair<String, bool>;
    const auto known = std::ranges::find(fixedWidths_, font.familyName, &Known::first);
    if (known != fixedWidths_.end()) return known->second;
    const bool isFixed = fonts_.widthOfText(u"ii", font) == fonts_.widthOfText(u"MM", font);
    fixedWidths_.emplace_back(font.familyName, isFixed);
    return isFixed;
}

bool BlockClassifier::isCode(const TextAttributes& attributes) {
    const Font* font = attributes.font();
    const Font* base = base_.font();
    return font != nullptr && base != nullptr && font->familyName != base->familyName &&
           attributes.backgroundColor() != nullptr && isFixedWidth(*font);
}

bool BlockClassifier::isQuoted(const TextAttributes& attributes) const {
    const ParagraphStyle* style = attributes.paragraphStyle();
    if (style == nullptr) return false;
    const ParagraphStyle around =
        base_.paragraphStyle() == nullptr ? ParagraphStyle() : *base_.paragraphStyle();
    const double indent = itemIndentOf(*style);
    return style->headIndent - indent > around.headIndent &&
           style->firstLineHeadIndent - indent > around.firstLineHeadIndent;
}

Block BlockClassifier::otherBlockOf(const RichText& text, const Line& line) {
    bool code = true;
    bool bold = true;
    // An empty line is code when its end is.
    for (const TextRunView run :
         text.runs({line.range.location, std::max(line.range.length, std::size_t{1})})) {
        const Font* font = run.attributes.font();
        code = code && isCode(run.attributes);
        bold = bold && font != nullptr && (font->traits & kFontBold) != 0;
        if (!code && !bold) break;
    }
    const bool isEmpty = line.units.empty();
    const bool quoted = !isEmpty && isQuoted(line.attributes);
    if (code) return {.kind = BlockKind::Code, .isQuoted = quoted};
    if (!bold || isEmpty || base_.font() == nullptr) return {.isQuoted = quoted};
    const double size = line.attributes.font()->pointSize;
    if (size == base_.font()->pointSize) return {.isQuoted = quoted};
    return {.kind = BlockKind::Heading, .level = levelOfHeading(size), .isQuoted = quoted};
}

/// The block that a paragraph is; the line of an item becomes its text.
Block BlockClassifier::blockOf(const RichText& text, Line& line) {
    const ParagraphStyle* style = line.attributes.paragraphStyle();
    const auto found = style == nullptr ? std::nullopt : listItemIn(line.units, *style);
    if (!found) return otherBlockOf(text, line);
    line.removePrefix(found->text.location);
    return {.kind = BlockKind::Item, .item = found->item};
}

Blocks BlockClassifier::blocksOf(const RichText& text) {
    const String units = text.string();
    Blocks result{paragraphsOf(units), {}};
    auto& [lines, blocks] = result;
    bool inList = false;
    bool isBehindSpace = false;   // whether the paragraph stands apart from the one before
    std::size_t indentation = 0;  // of the first line of a block in an item
    for (std::size_t i = 0; i < lines.size(); ++i) {
        Line line{lines[i], StringView(units).substr(lines[i].location, lines[i].length),
                  text.attributesAtIndex(lines[i].location)};
        Block block = blockOf(text, line);
        lines[i] = line.range;
        const bool isEmpty = isEmptyLine(block, lines[i]);
        const bool endsList = inList && (isEmpty || isBehindSpace);
        inList = block.kind == BlockKind::Item || (inList && !endsList);
        isBehindSpace = hasSpaceBehind(line.attributes);
        const bool isOneOfTwo = isEmpty && i + 1 < lines.size() && lines[i + 1].length == 0;
        if (endsList && isOneOfTwo) continue;
        block.isInList = inList;
        block.first = i;
        block.end = i + 1;
        const bool goesOn = !blocks.empty() && continues(blocks.back(), block) &&
                            haveOneStyle(text, lines[blocks.back().first], lines[i]);
        if (inList && block.kind != BlockKind::Item) {
            const std::size_t blanks = indentationOf(line.units);
            if (!goesOn) indentation = blanks;
            line.removePrefix(std::min(blanks, indentation));
            lines[i] = line.range;
        }
        if (goesOn) {
            blocks.back().end = block.end;
        } else {
            blocks.push_back(block);
        }
    }
    return result;
}

}  // namespace QZCore
