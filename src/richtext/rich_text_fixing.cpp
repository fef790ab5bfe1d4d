#include <algorithm>
#include <utility>

#include "QZCore/platform/fonts.h"
#include "QZCore/richtext/rich_text.h"
#include "richtext/attribute_fixing.h"
#include "richtext/paragraph_fixing.h"

namespace QZCore {
namespace {

constexpr std::size_t kStep = 1024;

/// The start of the paragraph that holds `position`.
std::size_t paragraphStart(const RichText& text, std::size_t position) {
    while (position > 0) {
        const std::size_t from = position > kStep ? position - kStep : 0;
        // One unit more, to tell a carriage return alone from one before a
        // line feed.
        const String part = text.string({from, position - from + 1});
        for (std::size_t at = holdsParagraphEnd(part) ? position - from : 0; at > 0; --at) {
            if (paragraphEndsBefore(part, at)) return from + at;
        }
        position = from;
    }
    return 0;
}

/// The end of the paragraph that is open before `position`.
std::size_t paragraphEnd(const RichText& text, std::size_t position) {
    while (position < text.length()) {
        const std::size_t from = position == 0 ? 0 : position - 1;
        const String part = text.string({from, kStep});
        const bool mayEnd = holdsParagraphEnd(part);
        for (std::size_t at = position - from; mayEnd && at < part.size(); ++at) {
            if (at > 0 && paragraphEndsBefore(part, at)) return from + at;
        }
        position = from + part.size();
    }
    return text.length();
}

}  // namespace

Range RichText::paragraphRangeForRange(Range range) const {
    range = clampedRange(range, length());
    const std::size_t start = paragraphStart(*this, range.location);
    const std::size_t inside = std::min(range.location + 1, length());
    return {start, paragraphEnd(*this, std::max(range.end(), inside)) - start};
}

void RichText::fixAttributesInRange(Range range) {
    range = clampedRange(range, length());
    if (edited_ && range.location <= untouchedPrefix_ &&
        length() - range.end() <= untouchedSuffix_) {
        edited_ = false;  // closing the batch has nothing left to do
    }
    const Range paragraphs = paragraphRangeForRange(range);
    if (!hasFlatForm(paragraphs.length)) return;
    FlatText fixed = FlatTextAccess::flattened(*this, paragraphs);
    const std::vector<FlatRun> before = fixed.runs;
    const auto catalog = sharedFontCatalog();
    AttributeFixing(*catalog).fixAttributes(fixed);
    if (fixed.runs == before) return;
    const int depth = std::exchange(editingDepth_, 0);  // no edit to fix again
    FlatTextAccess::replaceRuns(*this, paragraphs.location, fixed);
    editingDepth_ = depth;
}

}  // namespace QZCore
