// Quotations of more than one paragraph.
#pragma once

#include "QZCore/foundation/text.h"

namespace qznote {

/// `note` with a blank behind each quotation mark that stands alone in its line,
/// so that it is an empty line of the quotation and not a line of text.
[[nodiscard]] QZCore::String withQuotedEmptyLines(QZCore::StringView note);

}  // namespace qznote
