// HTML from rich text, and the links that are safe to follow. Reading is
// `RichText::attributedStringWithHTML`. May be called from any thread.
#pragma once

#include <cstdint>
#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {

/// How much of HTML is written.
enum class HtmlForm : std::uint8_t {
    Page,      // a document that needs no other file
    Fragment,  // one element to put into a document, which carries its style
};

/// What HTML needs to know beside its text.
struct HtmlOptions {
    /// A page unless said otherwise.
    HtmlForm form = HtmlForm::Page;
    /// The title of a page where the text has no heading.
    String title = {};
    /// The look of the bulk of the text; only what differs is written. Without
    /// a font it has the user's font at 12 points.
    TextAttributes base = {};
};

/// `text` as HTML in which a reader finds what a person sees: headings, lists,
/// quotations and code are elements of their own (`BlockClassifier` tells them),
/// images are within it or keep their source, and there are no scripts. Without
/// a colour in the base it follows the reader's light or dark scheme. A line
/// separator (U+2028) becomes a line break. Links that would run something are
/// left out. Linear in the text.
[[nodiscard]] QZ_EXPORT String htmlFromRichText(const RichText& text,
                                                const HtmlOptions& options = {});

/// The target of the link in `attributes` when following it runs nothing: a
/// relative one, or one of http, https, mailto and file. A scheme is recognised
/// as browsers do, which ignore blanks and control characters in it.
[[nodiscard]] QZ_EXPORT std::optional<String> safeLink(const TextAttributes& attributes);

/// The scheme of `target` in lower case; empty when it has none.
[[nodiscard]] QZ_EXPORT String schemeOf(StringView target);

}  // namespace QZCore
