// The lists of a note as outlines, for people.
#pragma once

#include <string>

#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// The items of each list in `text`, a rendered note most of which has the look
/// of `base`: one a line, indented by two blanks a level. The heading or the
/// line before a list is its title, which stands above it and indents it by a
/// level. An empty line separates lists. Nothing when there is no list.
[[nodiscard]] std::string outlineReport(const QZCore::RichText& text,
                                        const QZCore::TextAttributes& base);

}  // namespace qznote
