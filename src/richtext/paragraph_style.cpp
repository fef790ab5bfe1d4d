#include "QZCore/richtext/paragraph_style.h"

#include "foundation/hash.h"

namespace QZCore {
namespace {

std::size_t hashNumber(std::size_t seed, double value) {
    return hashCombine(seed, std::hash<double>{}(value));
}

void describe(String& text, StringView name, double value) {
    if (value == 0) return;
    if (!text.empty()) text += u", ";
    text.append(name).append(u" ").append(shortestString(value));
}

}  // namespace

std::size_t hashOf(const ParagraphStyle& style) {
    std::size_t seed = static_cast<std::size_t>(style.alignment);
    for (const double length :
         {style.minimumLineHeight, style.maximumLineHeight, style.lineHeightMultiple,
          style.lineSpacing, style.paragraphSpacingBefore, style.paragraphSpacing, style.headIndent,
          style.firstLineHeadIndent, style.tailIndent}) {
        seed = hashNumber(seed, length);
    }
    for (const TextTab& tab : style.tabStops) seed = hashNumber(seed, tab.location);
    seed = hashCombine(seed, hashOf(style.textLists));
    return hashCombine(seed, style.textBlocks.size());
}

String descriptionOf(const ParagraphStyle& style) {
    constexpr StringView kAlignments[] = {u"left", u"right", u"center", u"justified", u"natural"};
    String text;
    if (style.alignment != TextAlignment::Natural) {
        text = kAlignments[static_cast<std::size_t>(style.alignment)];
    }
    describe(text, u"min-line", style.minimumLineHeight);
    describe(text, u"max-line", style.maximumLineHeight);
    describe(text, u"line-multiple", style.lineHeightMultiple);
    describe(text, u"line-spacing", style.lineSpacing);
    describe(text, u"before", style.paragraphSpacingBefore);
    describe(text, u"after", style.paragraphSpacing);
    describe(text, u"head", style.headIndent);
    describe(text, u"first-head", style.firstLineHeadIndent);
    describe(text, u"tail", style.tailIndent);
    describe(text, u"direction", static_cast<double>(style.baseWritingDirection) + 1);
    for (const TextTab& tab : style.tabStops) describe(text, u"tab", tab.location);
    for (const TextList& list : style.textLists.lists()) {
        if (!text.empty()) text += u", ";
        text.append(u"list ").append(list.markerFormat);
    }
    describe(text, u"blocks", static_cast<double>(style.textBlocks.size()));
    return text;
}

}  // namespace QZCore
