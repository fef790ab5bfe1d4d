#include <algorithm>

#include "QZCore/richtext/rich_text.h"
#include "richtext/attribute_names.h"
#include "richtext/cleaned_runs.h"
#include "richtext/compared_colors.h"
#include "richtext/distinct_sets.h"
#include "richtext/store.h"

namespace QZCore {
namespace {

using Sets = std::vector<const TextAttributes*>;

/// Each set that a run has, once, in order of appearance.
Sets setsOf(const RichText& text) {
    Sets sets;
    (void)AttributeSweep::any(text, [&](const TextAttributes& set) {
        sets.push_back(&set);
        return false;
    });
    return sets;
}

bool sameFamilyAndSize(const Font* a, const Font* b) {
    if (a == nullptr || b == nullptr || a == b) return a == b;
    return a->familyName == b->familyName && a->pointSize == b->pointSize;
}

bool haveSameFontAndSize(const Sets& sets) {
    return std::ranges::all_of(sets, [&](const TextAttributes* set) {
        return sameFamilyAndSize(set->font(), sets.front()->font());
    });
}

bool haveSameColor(const Sets& sets) {
    ComparedColors colors;
    return std::ranges::all_of(sets, [&](const TextAttributes* set) {
        return colors.numberOf(comparedForeground(*set)) == 0;
    });
}

bool hasWritingDirection(const TextAttributes& attributes) {
    const ParagraphStyle* style = attributes.paragraphStyle();
    if (style != nullptr && style->baseWritingDirection != WritingDirection::Natural) return true;
    return attributes.find(NSWritingDirectionAttributeName) != nullptr;
}

bool hasBlockOrList(const TextAttributes& attributes) {
    const ParagraphStyle* style = attributes.paragraphStyle();
    return style != nullptr && !(style->textBlocks.empty() && style->textLists.empty());
}

}  // namespace

bool RichText::hasSameFontAndSize() const {
    if (!containsAppleColorEmoji()) return haveSameFontAndSize(setsOf(*this));
    FlatRuns text = FlatTextAccess::flattenedRuns(*this, {0, kFlatTextLimit - 1});
    removeColorEmojiFonts(text);
    return haveSameFontAndSize(distinctSets(text));
}

bool RichText::hasSameTextColor() const {
    if (!containsLinks() && !containsAppleColorEmoji()) return haveSameColor(setsOf(*this));
    const FlatRuns text = cleanedRuns(*this);
    return haveSameColor(distinctSets(text));
}

bool RichText::containsLinks() const {
    return AttributeSweep::any(*this, [](const auto& set) { return set.link() != nullptr; });
}

Value RichText::urlLink() const {
    const AttributeRange link = attributeAtIndex(NSLinkAttributeName, 0);
    return link.range.length == length() ? link.value : Value();
}

bool RichText::containsAppleColorEmoji() const {
    return AttributeSweep::any(*this, hasColorEmojiFont);
}

bool RichText::containsTextBlocksOrLists() const {
    return AttributeSweep::any(*this, hasBlockOrList);
}

bool RichText::containsWritingDirection() const {
    return AttributeSweep::any(*this, hasWritingDirection);
}

}  // namespace QZCore
