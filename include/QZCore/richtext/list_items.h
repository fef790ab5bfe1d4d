// Items of lists, as rich text shows them: as paragraphs that start with a
// marker between two tabs. May be called from any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "QZCore/export.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {

/// The bullet of items at odd depths.
inline constexpr char16_t kFilledBullet = u'\u25CF';
/// The bullet of items at even depths.
inline constexpr char16_t kOpenBullet = u'\u25E6';

/// What distinguishes an item from other paragraphs.
struct TextListItem {
    /// 1 for the items of the list itself, one more for each item around.
    std::size_t depth = 1;
    /// One of the bullets; U+0000 for an item with a number.
    char16_t bullet = kFilledBullet;
    /// The number of an item without a bullet.
    std::uint32_t number = 0;

    /// Whether the item has a number in place of a bullet.
    [[nodiscard]] bool isNumbered() const { return bullet == u'\0'; }

    /// The bullet, or the number with a full stop.
    [[nodiscard]] QZ_EXPORT String marker() const;
};

/// An item, and where its text stands behind the marker.
struct FoundTextListItem {
    /// What it is.
    TextListItem item;
    /// Its text, counted from the start of the paragraph.
    Range text;
};

/// The item that a paragraph of that style is: a tab, its marker, a tab and its
/// text, with a stop where markers end and one where texts start. A paragraph
/// that was only typed so is none, since it lacks the stops.
[[nodiscard]] QZ_EXPORT std::optional<FoundTextListItem> listItemIn(StringView paragraph,
                                                                    const ParagraphStyle& style);

/// How far the list around a paragraph of that style indents its text: where the
/// texts of items start, which paragraphs below an item know, too. 0 outside of
/// lists.
[[nodiscard]] QZ_EXPORT double itemIndentOf(const ParagraphStyle& style);

}  // namespace QZCore
