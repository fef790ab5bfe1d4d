#include <algorithm>

#include "richtext/rtf_underlines.h"
#include "richtext/rtf_word_tables.h"

namespace QZCore {
namespace {

using C = RtfCharacter;
using N = RtfNumber;

/// Sets the underline style to that of `Row` in the table of styles.
template <std::size_t Row>
void underline(C& c, N n) {
    c.underline = n.isOn() ? kRtfUnderlines[Row].style : 0;
}

/// Rows of underlines, in the order of the table of styles.
template <std::size_t Row>
constexpr RtfWordRow underlineRow() {
    return {kRtfUnderlines[Row].word, RtfCharacterChange(underline<Row>)};
}

void setSize(C& c, N n) { c.halfPoints = std::clamp(n.value, 0, 32767); }
void setBackground(C& c, N n) { c.background = n.value; }
void offsetBy(C& c, std::int32_t halfPoints) { c.offset = std::clamp(halfPoints, -32767, 32767); }

constexpr RtfWordRow row(std::string_view name, RtfCharacterChange change) {
    return {name, change};
}

constexpr RtfWordRow kWords[] = {
    row("b", [](C& c, N n) { c.isBold = n.isOn(); }),
    row("i", [](C& c, N n) { c.isItalic = n.isOn(); }),
    row("f", [](C& c, N n) { c.font = std::max(n.value, -1); }),
    row("fs", setSize),
    row("cf", [](C& c, N n) { c.foreground = n.value; }),
    row("cb", setBackground),
    row("chcbpat", setBackground),
    row("highlight", setBackground),
    row("v", [](C& c, N n) { c.isHidden = n.isOn(); }),
    row("deleted", [](C& c, N n) { c.isHidden = n.isOn(); }),
    underlineRow<0>(),
    underlineRow<1>(),
    underlineRow<2>(),
    underlineRow<3>(),
    underlineRow<4>(),
    underlineRow<5>(),
    underlineRow<6>(),
    underlineRow<7>(),
    row("ulwave", underline<0>),
    row("ulnone", [](C& c, N) { c.underline = 0; }),
    row("ulc", [](C& c, N n) { c.underlineColor = n.value; }),
    row("strike", [](C& c, N n) { c.strikethrough = n.isOn() ? kSingleLine : 0; }),
    row("striked", [](C& c, N n) { c.strikethrough = n.isOn() ? kDoubleLine : 0; }),
    row("super", [](C& c, N n) { c.superscript = n.isOn() ? 1 : 0; }),
    row("sub", [](C& c, N n) { c.superscript = n.isOn() ? -1 : 0; }),
    row("nosupersub", [](C& c, N) { c.superscript = 0; }),
    row("up", [](C& c, N n) { offsetBy(c, n.valueOr(6)); }),
    row("dn", [](C& c, N n) { offsetBy(c, -std::max(n.valueOr(6), -32767)); }),
};
static_assert(kRtfUnderlines.size() == 8, "each underline has a row");

}  // namespace

std::span<const RtfWordRow> rtfCharacterWords() { return kWords; }

}  // namespace QZCore
