// Rich text for a terminal.
#pragma once

#include <string>

#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// `text`, most of which has the look of `base`, with the terminal's codes for
/// bold, italic, underline, strikethrough, colours and links. Items of lists
/// stand in columns, quotations have a bar along them, and code has its
/// background up to the edge of the window. Every line ends with all codes
/// switched off. Control characters of the text are shown as symbols, so that
/// no text can steer the terminal. Images are named in brackets with their size.
[[nodiscard]] std::string ansiText(const QZCore::RichText& text,
                                   const QZCore::TextAttributes& base);

}  // namespace qznote
