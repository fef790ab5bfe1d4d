// The tables of control words, each in a file of its own.
#pragma once

#include <span>

#include "richtext/rtf_words.h"

namespace QZCore {

[[nodiscard]] std::span<const RtfWordRow> rtfCharacterWords();
[[nodiscard]] std::span<const RtfWordRow> rtfParagraphWords();
[[nodiscard]] std::span<const RtfWordRow> rtfDestinationWords();

}  // namespace QZCore
