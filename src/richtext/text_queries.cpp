#include <algorithm>

#include "QZCore/richtext/rich_text.h"
#include "richtext/attribute_names.h"
#include "richtext/cleaned_runs.h"
#include "richtext/compared_colors.h"
#include "richtext/distinct_sets.h"

namespace QZCore {
namespace {

/// Whether some run of `text` has what `test` asks for.
template <class Test>
bool anyRun(const RichText& text, Test test) {
    for (const TextRunView run : text.runs()) {
        if (test(run.attributes)) return true;
    }
    return false;
}

bool sameFamilyAndSize(const Font* a, const Font* b) {
    if (a == nullptr || b == nullptr || a == b) return a == b;
    return a->familyName == b->familyName && a->pointSize == b->pointSize;
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
    FlatRuns text = FlatTextAccess::flattenedRuns(*this, {0, kFlatTextLimit - 1});
    removeColorEmojiFonts(text);
    const auto sets = distinctSets(text);
    return std::ranges::all_of(sets, [&](const TextAttributes* set) {
        return sameFamilyAndSize(set->font(), sets.front()->font());
    });
}

bool RichText::hasSameTextColor() const {
    const FlatRuns text = cleanedRuns(*this);
    ComparedColors colors;
    return std::ranges::all_of(distinctSets(text), [&](const TextAttributes* set) {
        return colors.numberOf(comparedForeground(*set)) == 0;
    });
}

bool RichText::containsLinks() const {
    return anyRun(*this, [](const auto& attributes) { return attributes.link() != nullptr; });
}

Value RichText::urlLink() const {
    const AttributeRange link = attributeAtIndex(NSLinkAttributeName, 0);
    return link.range.length == length() ? link.value : Value();
}

bool RichText::containsAppleColorEmoji() const { return anyRun(*this, hasColorEmojiFont); }

bool RichText::containsTextBlocksOrLists() const { return anyRun(*this, hasBlockOrList); }

bool RichText::containsWritingDirection() const { return anyRun(*this, hasWritingDirection); }

}  // namespace QZCore
