// The look of characters in RTF.
#pragma once

#include <string>

#include "QZCore/richtext/text_attributes.h"
#include "richtext/rtf_tables.h"

namespace QZCore {

/// The control words for the look of text with `attributes`, where nothing is
/// said of it yet. Links and attachments are no part of it.
[[nodiscard]] std::string rtfCharacterCodes(const TextAttributes& attributes, RtfTables& tables);

}  // namespace QZCore
