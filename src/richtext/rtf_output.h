// Control words and text of an RTF document.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// `points` in twentieths of a point, the unit of most lengths in RTF. What is
/// not a number is 0; what no page holds is cut.
[[nodiscard]] std::int32_t twipsOf(double points);

/// Writes a document, or a piece of one, from start to end.
class RtfOutput {
public:
    /// Makes room for that many bytes.
    void reserve(std::size_t bytes) { bytes_.reserve(bytes); }

    /// A control word.
    void word(std::string_view name);
    /// A control word with a number.
    void word(std::string_view name, std::int64_t number);
    /// Control words that stood in another output.
    void words(std::string_view words);
    /// Starts a group.
    void openGroup() { mark("{"); }
    /// Starts a group that readers pass over when they do not know its `name`.
    void openIgnorableGroup(std::string_view name);
    /// Ends a group.
    void closeGroup() { mark("}"); }
    /// Text, without paragraph ends: what is not ASCII as escapes, with a
    /// stand-in for readers without Unicode.
    void text(StringView units);
    /// A byte of text by its value.
    void byte(std::uint8_t value);
    /// The end of a paragraph.
    void paragraphEnd();
    /// Anything else, which starts with no letter, digit, hyphen or blank.
    void mark(std::string_view bytes);

    [[nodiscard]] const std::string& bytes() const { return bytes_; }

private:
    void escape(char16_t unit);

    std::string bytes_;
    bool endsWithWord_ = false;  // and so a blank must stand before text
};

}  // namespace QZCore
