// Rich text as a page for a browser.
#pragma once

#include <string>

#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// What a page needs to know beside its text.
struct HtmlPage {
    /// The title where the text has no heading.
    QZCore::String title;
    /// The look of the bulk of the text; only what differs is written.
    QZCore::TextAttributes base;
};

/// `text` as one self-contained page: UTF-8, images within it, no scripts. The
/// page follows the reader's light or dark scheme unless its base has a colour.
/// Links that would run something are left out.
[[nodiscard]] std::string htmlPage(const QZCore::RichText& text, const HtmlPage& page);

}  // namespace qznote
