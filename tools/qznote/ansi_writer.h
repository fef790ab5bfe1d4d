// Rich text for a terminal.
#pragma once

#include <string>

#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// `text` with the terminal's codes for bold, italic, underline, strikethrough,
/// colours and links. Every line ends with all of them switched off. Control
/// characters of the text are shown as symbols, so that no text can steer the
/// terminal. Images are named in brackets with their size.
[[nodiscard]] std::string ansiText(const QZCore::RichText& text);

}  // namespace qznote
