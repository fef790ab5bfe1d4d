#include <algorithm>

#include "richtext/rtf_units.h"
#include "richtext/rtf_word_tables.h"

namespace QZCore {
namespace {

using P = RtfParagraph;
using N = RtfNumber;

double pointsOf(N n) { return n.length() / kTwipsPerPoint; }

template <TextAlignment Alignment>
void align(P& p, N) {
    p.style.alignment = Alignment;
}

template <TextAlignment Alignment>
void alignNextTab(P& p, N) {
    p.nextTab = Alignment;
}

void addTab(P& p, N n) {
    constexpr std::size_t kMostTabs = 64;
    if (p.style.tabStops.size() < kMostTabs) p.style.tabStops.push_back({p.nextTab, pointsOf(n)});
    p.nextTab = TextAlignment::Natural;
}

/// Lines that reach into the margin end so far from the start of the text.
void setTailIndent(P& p, N n) {
    p.style.tailIndent = n.value < 0 ? kRtfTextWidth - pointsOf(n) : 0 - pointsOf(n);
}

constexpr RtfWordRow row(std::string_view name, RtfParagraphChange change) {
    return {name, change};
}

constexpr RtfWordRow kWords[] = {
    row("pard", [](P& p, N) { p = {}; }),
    row("ql", align<TextAlignment::Left>),
    row("qr", align<TextAlignment::Right>),
    row("qc", align<TextAlignment::Center>),
    row("qj", align<TextAlignment::Justified>),
    row("ltrpar", [](P& p, N) { p.style.baseWritingDirection = WritingDirection::LeftToRight; }),
    row("rtlpar", [](P& p, N) { p.style.baseWritingDirection = WritingDirection::RightToLeft; }),
    row("li", [](P& p, N n) { p.indent = n.length(); }),
    row("fi", [](P& p, N n) { p.firstIndent = n.length(); }),
    row("ri", setTailIndent),
    row("sb", [](P& p, N n) { p.style.paragraphSpacingBefore = pointsOf(n); }),
    row("sa", [](P& p, N n) { p.style.paragraphSpacing = pointsOf(n); }),
    row("sl", [](P& p, N n) { p.lineHeight = n.length(); }),
    row("slmult", [](P& p, N n) { p.lineHeightIsMultiple = n.value != 0; }),
    row("slminimum", [](P& p, N n) { p.least = n.length(); }),
    row("slmaximum", [](P& p, N n) { p.most = n.length(); }),
    row("slleading", [](P& p, N n) { p.style.lineSpacing = pointsOf(n); }),
    row("tx", addTab),
    row("tqr", alignNextTab<TextAlignment::Right>),
    row("tqc", alignNextTab<TextAlignment::Center>),
    row("tqdec", alignNextTab<TextAlignment::Right>),
    row("cbpat", [](P& p, N n) { p.fill = n.value; }),
    row("brsp", [](P& p, N n) { p.padding = n.length(); }),
    row("ls", [](P& p, N n) { p.list = n.value; }),
    row("ilvl", [](P& p, N n) { p.level = std::clamp(n.value, 0, 8); }),
};

}  // namespace

std::span<const RtfWordRow> rtfParagraphWords() { return kWords; }

}  // namespace QZCore
