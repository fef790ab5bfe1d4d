// Rich text as lines of text, one a run, for people who look closely and for
// tests.
#pragma once

#include <string>

#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// One line for each run: its text in double quotes, then what differs from
/// 12-point text in the user's font without any other attribute. Line feeds,
/// tabs, quotes and backslashes in the text are written as "\n", "\t", "\"" and
/// "\\".
[[nodiscard]] std::string runLines(const QZCore::RichText& text);

}  // namespace qznote
