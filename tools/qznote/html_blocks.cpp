#include "html_blocks.h"

#include <algorithm>
#include <array>

namespace qznote {
namespace {

using namespace QZCore;

/// Headings have sizes of their own; these are where the next level begins.
int levelOfHeading(double pointSize) {
    constexpr std::array<double, 5> kLeastSizes{32, 24, 18, 16, 13};
    const auto* at =
        std::ranges::find_if(kLeastSizes, [&](double least) { return pointSize >= least; });
    return static_cast<int>(at - kLeastSizes.begin()) + 1;
}

}  // namespace

BlockClassifier::BlockClassifier(const TextAttributes& base) : base_(base) {}

bool BlockClassifier::isFixedWidth(const Font& font) {
    const auto [at, isNew] = fixedWidths_.try_emplace(font.familyName);
    if (isNew) at->second = fonts_.widthOfText(u"ii", font) == fonts_.widthOfText(u"MM", font);
    return at->second;
}

bool BlockClassifier::isCode(const TextAttributes& attributes) {
    const Font* font = attributes.font();
    const Font* base = base_.font();
    return font != nullptr && base != nullptr && font->familyName != base->familyName &&
           attributes.backgroundColor() != nullptr && isFixedWidth(*font);
}

Block BlockClassifier::blockOf(const RichText& text, Range paragraph) {
    bool code = true;
    bool bold = true;
    // An empty line is code when its end is.
    for (const TextRunView run :
         text.runs({paragraph.location, std::max(paragraph.length, std::size_t{1})})) {
        const Font* font = run.attributes.font();
        code = code && isCode(run.attributes);
        bold = bold && font != nullptr && (font->traits & kFontBold) != 0;
    }
    if (code) return {.kind = BlockKind::Code};
    const TextAttributes first = text.attributesAtIndex(paragraph.location);
    if (!bold || paragraph.length == 0 || base_.font() == nullptr ||
        first.font()->pointSize == base_.font()->pointSize) {
        return {};
    }
    return {.kind = BlockKind::Heading, .level = levelOfHeading(first.font()->pointSize)};
}

std::vector<Block> BlockClassifier::blocksOf(const RichText& text,
                                             const std::vector<Range>& paragraphs) {
    std::vector<Block> blocks;
    for (std::size_t i = 0; i < paragraphs.size(); ++i) {
        Block block = blockOf(text, paragraphs[i]);
        if (block.kind == BlockKind::Code && !blocks.empty() &&
            blocks.back().kind == BlockKind::Code) {
            blocks.back().end = i + 1;
            continue;
        }
        block.first = i;
        block.end = i + 1;
        blocks.push_back(block);
    }
    return blocks;
}

}  // namespace qznote
