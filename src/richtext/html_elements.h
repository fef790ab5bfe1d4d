// The elements of HTML and what they mean for those around and within.
#pragma once

#include <cstdint>
#include <iterator>
#include <optional>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// What an element may be, each a bit.
enum HtmlTrait : std::uint16_t {
    kBlock = 1 << 0,       // no paragraph goes on around it
    kText = 1 << 1,        // a background behind it is that of its text
    kFormatting = 1 << 2,  // left open, it goes on behind the block around it
    kVoid = 1 << 3,        // it has no contents and no end tag
    kList = 1 << 4,
    kCell = 1 << 5,  // of a table
    kTablePart = 1 << 6,
    kBarrier = 1 << 7,  // tags within end nothing outside
    kHead = 1 << 8,     // it may stand in the head of a document
    kPage = 1 << 9,     // there without its tags, which only add attributes
    kKept = 1 << 10,    // a line feed behind its start tag shows nothing
    kHeading = 1 << 11,
};

/// A row of the table of elements.
struct HtmlElementRow {
    StringView name;
    std::uint16_t traits;
};

/// The elements that have a meaning here, by name.
inline constexpr HtmlElementRow kHtmlElements[] = {
    {u"a", kFormatting},
    {u"address", kBlock | kText},
    {u"area", kVoid},
    {u"article", kBlock},
    {u"aside", kBlock},
    {u"b", kFormatting},
    {u"base", kVoid | kHead},
    {u"basefont", kVoid},
    {u"bgsound", kVoid},
    {u"big", kFormatting},
    {u"blockquote", kBlock},
    {u"body", kPage},
    {u"br", kVoid},
    {u"button", kBarrier},
    {u"caption", kCell | kTablePart | kBarrier},
    {u"center", kBlock},
    {u"code", kFormatting},
    {u"col", kVoid},
    {u"dd", kBlock | kText},
    {u"del", kFormatting},
    {u"details", kBlock},
    {u"dialog", kBlock},
    {u"dir", kList | kBlock},
    {u"div", kBlock},
    {u"dl", kBlock},
    {u"dt", kBlock | kText},
    {u"em", kFormatting},
    {u"embed", kVoid},
    {u"fieldset", kBlock},
    {u"figcaption", kBlock | kText},
    {u"figure", kBlock},
    {u"font", kFormatting},
    {u"footer", kBlock},
    {u"form", kBlock},
    {u"frame", kVoid},
    {u"h1", kBlock | kText | kHeading},
    {u"h2", kBlock | kText | kHeading},
    {u"h3", kBlock | kText | kHeading},
    {u"h4", kBlock | kText | kHeading},
    {u"h5", kBlock | kText | kHeading},
    {u"h6", kBlock | kText | kHeading},
    {u"head", kPage},
    {u"header", kBlock},
    {u"hgroup", kBlock},
    {u"hr", kVoid | kBlock},
    {u"html", kPage},
    {u"i", kFormatting},
    {u"img", kVoid},
    {u"input", kVoid},
    {u"ins", kFormatting},
    {u"keygen", kVoid},
    {u"li", kBlock | kText},
    {u"link", kVoid | kHead},
    {u"listing", kBlock | kKept},
    {u"main", kBlock},
    {u"mark", kFormatting},
    {u"menu", kList | kBlock},
    {u"meta", kVoid | kHead},
    {u"nav", kBlock},
    {u"nobr", kFormatting},
    {u"noscript", kHead},
    {u"object", kBarrier},
    {u"ol", kList | kBlock},
    {u"option", 0},
    {u"p", kBlock | kText},
    {u"param", kVoid},
    {u"plaintext", kBlock},
    {u"pre", kBlock | kText | kKept},
    {u"s", kFormatting},
    {u"script", kHead},
    {u"search", kBlock},
    {u"section", kBlock},
    {u"small", kFormatting},
    {u"source", kVoid},
    {u"strike", kFormatting},
    {u"strong", kFormatting},
    {u"style", kHead},
    {u"sub", kFormatting},
    {u"summary", kBlock | kText},
    {u"sup", kFormatting},
    {u"table", kBlock | kBarrier},
    {u"tbody", kTablePart},
    {u"td", kCell | kTablePart | kBarrier},
    {u"template", kHead},
    {u"textarea", kKept},
    {u"tfoot", kTablePart},
    {u"th", kCell | kTablePart | kBarrier},
    {u"thead", kTablePart},
    {u"title", kHead},
    {u"tr", kTablePart},
    {u"track", kVoid},
    {u"tt", kFormatting},
    {u"u", kFormatting},
    {u"ul", kList | kBlock},
    {u"wbr", kVoid},
    {u"xmp", kBlock},
};

/// The number of the elements above; others get numbers from here on.
inline constexpr std::uint32_t kHtmlElementCount = std::size(kHtmlElements);

/// The number of an element of the table.
consteval std::uint32_t htmlElement(StringView name) {
    std::uint32_t number = 0;
    while (kHtmlElements[number].name != name) ++number;
    return number;
}

/// The number of the element `name`; nothing when it is not in the table.
[[nodiscard]] std::optional<std::uint32_t> findHtmlElement(StringView name);

/// Whether the element with that number has one of the `traits`.
[[nodiscard]] constexpr bool isHtml(std::uint32_t element, unsigned traits) {
    return element < kHtmlElementCount && (kHtmlElements[element].traits & traits) != 0;
}

}  // namespace QZCore
