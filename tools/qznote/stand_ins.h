// What stands in the output for what cannot be shown there.
#pragma once

#include "QZCore/foundation/text.h"
#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// `text` with "[a sketch 64x48]" in place of each character that stands for the
/// image in `attributes`.
[[nodiscard]] QZCore::String withImagesNamed(QZCore::StringView text,
                                             const QZCore::TextAttributes& attributes);

/// The text in `range` with its images named.
[[nodiscard]] QZCore::String plainText(const QZCore::RichText& text, QZCore::Range range);

/// `text` with line feeds in place of line separators, for what has no other
/// line ends.
[[nodiscard]] QZCore::RichText withLineFeeds(const QZCore::RichText& text);

/// `text` with control characters other than the tab as the symbols that stand
/// for them, so that it cannot steer a terminal.
[[nodiscard]] QZCore::String withVisibleControls(QZCore::StringView text);

}  // namespace qznote
