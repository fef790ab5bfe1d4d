#include "richtext/item_indents.h"

#include <algorithm>

namespace QZCore {

void ItemIndents::apply(ParagraphStyle& style, double level, double markerWidth) const {
    const double indent =
        std::max(markerWidth, level * markerWidth + (level - levelsAtMargin) * indention + gap);
    style.headIndent = indent;
    style.tabStops = {{TextAlignment::Right, indent - gap}, {TextAlignment::Natural, indent}};
}

String widestItemNumber(std::size_t items) { return String(items / 10, u'9') + u"9."; }

}  // namespace QZCore
