#include "richtext/rtf_paragraph_codes.h"

#include <algorithm>
#include <cmath>

#include "richtext/rtf_units.h"

namespace QZCore {
namespace {

void writeLength(std::string_view word, double points, RtfOutput& out) {
    const std::int32_t twips = twipsOf(points);
    if (twips != 0) out.word(word, twips);
}

void writeAlignment(TextAlignment alignment, RtfOutput& out) {
    switch (alignment) {
        case TextAlignment::Left:
            return out.word("ql");
        case TextAlignment::Right:
            return out.word("qr");
        case TextAlignment::Center:
            return out.word("qc");
        case TextAlignment::Justified:
            return out.word("qj");
        case TextAlignment::Natural:
            return;
    }
}

void writeDirection(WritingDirection direction, RtfOutput& out) {
    if (direction == WritingDirection::LeftToRight) out.word("ltrpar");
    if (direction == WritingDirection::RightToLeft) out.word("rtlpar");
}

/// A multiple, an exact height or a least height, whichever comes first, is
/// what all readers know; what else there is follows in words that some know.
void writeLineHeights(const ParagraphStyle& style, RtfOutput& out) {
    constexpr double kMost = 100;
    const std::int32_t least = twipsOf(style.minimumLineHeight);
    const std::int32_t most = twipsOf(style.maximumLineHeight);
    const double multiple = std::isnan(style.lineHeightMultiple) ? 0 : style.lineHeightMultiple;
    const bool isExact = least > 0 && least == most;
    if (multiple > 0) {
        out.word("sl", std::lround(std::min(multiple, kMost) * kPartsOfALine));
        out.word("slmult", 1);
    } else if (least > 0) {
        out.word("sl", isExact ? -least : least);
        out.word("slmult", 0);
    }
    if (multiple > 0 && least > 0) out.word("slminimum", least);
    if (most > 0 && (multiple > 0 || !isExact)) out.word("slmaximum", most);
    writeLength("slleading", style.lineSpacing, out);
}

void writeIndents(const ParagraphStyle& style, RtfOutput& out) {
    writeLength("li", style.headIndent, out);
    const std::int32_t first = twipsOf(style.firstLineHeadIndent) - twipsOf(style.headIndent);
    if (first != 0) out.word("fi", first);
    const bool isFromLeading = style.tailIndent > 0;
    writeLength("ri", isFromLeading ? kRtfTextWidth - style.tailIndent : -style.tailIndent, out);
}

void writeTabStops(const ParagraphStyle& style, RtfOutput& out) {
    for (const TextTab& tab : style.tabStops) {
        if (tab.alignment == TextAlignment::Right) out.word("tqr");
        if (tab.alignment == TextAlignment::Center) out.word("tqc");
        out.word("tx", twipsOf(tab.location));
    }
}

/// A filled box. A line in the colour of the box makes readers keep its
/// padding.
void writeBlock(const TextBlock& block, RtfTables& tables, RtfOutput& out) {
    constexpr std::int64_t kHairline = 5;
    const bool isFilled = block.backgroundColor && block.backgroundColor->alphaComponent() > 0;
    const auto fill =
        isFilled ? static_cast<std::int64_t>(tables.colors.numberOf(*block.backgroundColor)) : 0;
    const std::int32_t padding = twipsOf(block.padding);
    if (padding != 0) {
        out.word("box");
        out.word(isFilled ? "brdrs" : "brdrnone");
        if (isFilled) out.word("brdrw", kHairline);
        if (isFilled) out.word("brdrcf", fill);
        out.word("brsp", padding);
    }
    if (isFilled) out.word("cbpat", fill);
}

}  // namespace

std::string rtfParagraphCodes(const ParagraphStyle& style, RtfTables& tables) {
    RtfOutput out;
    out.word("pard");
    writeDirection(style.baseWritingDirection, out);
    writeAlignment(style.alignment, out);
    writeTabStops(style, out);
    writeIndents(style, out);
    writeLength("sb", style.paragraphSpacingBefore, out);
    writeLength("sa", style.paragraphSpacing, out);
    writeLineHeights(style, out);
    if (!style.textBlocks.empty()) writeBlock(style.textBlocks.back(), tables, out);
    return out.bytes();
}

}  // namespace QZCore
