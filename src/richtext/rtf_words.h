// The control words of RTF and what they do.
#pragma once

#include <cstdint>
#include <string_view>
#include <variant>

#include "richtext/rtf_state.h"

namespace QZCore {

/// The number of a control word.
struct RtfNumber {
    bool isGiven = false;
    std::int32_t value = 0;

    /// The number, or `otherwise` where none was given.
    [[nodiscard]] std::int32_t valueOr(std::int32_t otherwise) const {
        return isGiven ? value : otherwise;
    }
    /// What a word means that switches something: on, unless the number is 0.
    [[nodiscard]] bool isOn() const { return valueOr(1) != 0; }
    /// Numbers that lengths are made of, within what documents need.
    [[nodiscard]] std::int32_t length() const;
};

/// Changes the look of what follows.
using RtfCharacterChange = void (*)(RtfCharacter&, RtfNumber);
using RtfParagraphChange = void (*)(RtfParagraph&, RtfNumber);

/// What a control word does: one of these changes, the start of a destination,
/// or a character.
using RtfWord = std::variant<RtfCharacterChange, RtfParagraphChange, RtfDestination, char16_t>;

/// What the end of a row of a table is among the characters.
inline constexpr char16_t kRtfRowEnd = 0x1E;

/// The word named `name`; null when it is not known here.
[[nodiscard]] const RtfWord* rtfWordNamed(std::string_view name);

/// A row of a table of words.
struct RtfWordRow {
    std::string_view name;
    RtfWord word;
};

}  // namespace QZCore
