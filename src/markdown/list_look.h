// How list items look: their markers, indents and tab stops.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "QZCore/foundation/preferences.h"
#include "QZCore/markdown/lists.h"
#include "QZCore/markdown/style_sheet.h"
#include "QZCore/richtext/font_manager.h"
#include "richtext/item_indents.h"

namespace QZCore {

/// What decides how an item looks beside its text.
struct ListItem {
    StringView markerFormat = kMarkdownListDisc;
    /// 1 for the items of the list itself, one more for each level below.
    std::uint32_t level = 1;
    /// The place among its siblings, from 1 on.
    std::size_t position = 1;
    /// How many items its parent has, itself among them.
    std::size_t siblings = 1;

    [[nodiscard]] bool isNumbered() const { return markerFormat == kMarkdownListDecimal; }
};

/// How the items of one list look.
class ListLook {
public:
    /// `prefix` are the attributes of the markers.
    ListLook(const StyleSheet& styles, const Preferences& preferences, const TextAttributes& prefix,
             bool indentsFirstLevel);

    /// A bullet, or the position with a full stop.
    [[nodiscard]] String markerOf(const ListItem& item) const;

    /// The paragraph style of an item that stands in `textLists`.
    [[nodiscard]] ParagraphStyle styleOf(const ListItem& item, TextLists textLists) const;

    /// Items of one level have the same indents when this is the same for them.
    [[nodiscard]] static std::size_t widthClassOf(const ListItem& item) {
        return item.isNumbered() ? item.siblings / 10 + 1 : 0;
    }

private:
    [[nodiscard]] double markerWidthOf(const ListItem& item) const;

    FontManager fonts_;
    Font font_;
    ParagraphStyle base_;
    bool alternatesDiscs_;
    ItemIndents indents_;
};

}  // namespace QZCore
