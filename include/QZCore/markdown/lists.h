// Lists: Markdown lists as outlines, and outlines as rich text with text lists.
//
// An outline is a `QZTreeNode` without datum whose descendants are the items.
// The datum of an item is a `QZPair`: its key the marker format, "{disc}" or
// "{decimal}", its value the item's text as rich text (`Value::boxed(RichText)`).
//
// In rich text an item is a paragraph of a tab, the marker, a tab and the item's
// text. The markers of a level end, and its texts start, at a tab stop of their
// own. The paragraph style carries one text list for each item that the item
// lies under; the items of the list itself carry none.
#pragma once

#include <memory>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/preferences.h"
#include "QZCore/markdown/style_sheet.h"
#include "QZCore/markdown/syntax.h"
#include "QZCore/model/tree_node.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {

/// The marker format of items with a bullet.
inline constexpr StringView kMarkdownListDisc = u"{disc}";
/// The marker format of numbered items.
inline constexpr StringView kMarkdownListDecimal = u"{decimal}";

/// The Markdown list `markdown` as rich text.
///
/// A line that starts with a letter joins the item above it. An item lies under
/// the one before it when it is indented deeper, and never more than one level
/// below: tabs count one level each, blanks by "Import List Spaces Per Indent"
/// (0 and less count as 1). Markers take the attributes that the whole list has
/// in common. The first level is indented when "Markdown Inline Lists Indent
/// First Level" says so or, with a title, when "Markdown Inline Lists Only If
/// Titled Indent First Level" does. Paragraphs take their spacing from the style
/// "-". A line that is no item is kept in its place as a paragraph of its own. A
/// blank line at the end is kept behind the last item's line feed.
[[nodiscard]] QZ_EXPORT RichText richTextListFromMarkdown(const RichText& markdown, bool hasTitle,
                                                          const StyleSheet& withStyles);

/// The same with a syntax table and preferences of one's own.
[[nodiscard]] QZ_EXPORT RichText richTextListFromMarkdown(const RichText& markdown, bool hasTitle,
                                                          const StyleSheet& withStyles,
                                                          const MarkdownSyntax& syntax,
                                                          const Preferences& preferences);

/// Adds `node` and all below it to `intoBuffer`, items before their sub-items.
/// A node without datum writes only its children. `withPrefixAttributes` are the
/// attributes of the markers, `textLists` the lists that the node stands in. A
/// marker format that is not "{decimal}" gets a bullet, and a value that is no
/// rich text an item without text. An item's level is that of its node.
QZ_EXPORT void richTextListForNode(const QZTreeNode& node,
                                   const TextAttributes& withPrefixAttributes,
                                   const StyleSheet& withStyles, bool indentFirstLevel,
                                   const TextLists& textLists, RichText& intoBuffer);

/// The same with preferences of one's own.
QZ_EXPORT void richTextListForNode(const QZTreeNode& node,
                                   const TextAttributes& withPrefixAttributes,
                                   const StyleSheet& withStyles, bool indentFirstLevel,
                                   const TextLists& textLists, RichText& intoBuffer,
                                   const Preferences& preferences);

/// The outline of the Markdown list `markdown`. Lines that are no items are left
/// out. A text of 2^32 - 1 units or more has no items.
[[nodiscard]] QZ_EXPORT std::shared_ptr<QZTreeNode> listOutlineFromMarkdown(
    const RichText& markdown);

/// The same with a syntax table and preferences of one's own.
[[nodiscard]] QZ_EXPORT std::shared_ptr<QZTreeNode> listOutlineFromMarkdown(
    const RichText& markdown, const MarkdownSyntax& syntax, const Preferences& preferences);

}  // namespace QZCore
