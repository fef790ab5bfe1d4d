// The look of paragraphs in RTF.
#pragma once

#include <string>

#include "QZCore/richtext/paragraph_style.h"
#include "richtext/rtf_tables.h"

namespace QZCore {

/// The control words that set all of the look of a paragraph. Lists are no part
/// of it. Of the text blocks around a paragraph only the innermost is written,
/// without its margin.
[[nodiscard]] std::string rtfParagraphCodes(const ParagraphStyle& style, RtfTables& tables);

}  // namespace QZCore
