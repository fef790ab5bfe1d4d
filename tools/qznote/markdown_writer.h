// Rich text as a note in Markdown.
#pragma once

#include <string>

#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// `text`, most of which has the look of `base`, in Markdown: what
/// `markdownString` writes of it, with the markers of lists and quotations and
/// the fences around code.
[[nodiscard]] std::string markdownNote(const QZCore::RichText& text,
                                       const QZCore::TextAttributes& base);

}  // namespace qznote
