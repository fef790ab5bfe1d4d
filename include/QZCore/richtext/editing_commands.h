// Editing commands: one change of character or paragraph formatting, applied to
// ranges of a text or to the attributes of what is typed next.
//
// An absent member, or one at its stated value, means no change. Conversions
// that a font cannot satisfy leave it as it is.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "QZCore/color/color.h"
#include "QZCore/export.h"
#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"
#include "QZCore/richtext/rich_text.h"
#include "QZCore/richtext/text_attributes.h"

namespace QZCore {

/// What a character command changes.
struct CharacterChange {
    /// The underline and strikethrough style that means no change.
    static constexpr std::int32_t kKeepLine = -1;
    /// The superscript that means no change.
    static constexpr std::int32_t kKeepSuperscript = 65535;

    /// Convert fonts to this family.
    std::optional<String> fontFamily = {};
    /// Convert fonts to this face instead.
    std::optional<String> faceName = {};
    /// Convert fonts to this size in points; 0 or less is no change.
    float fontSize = 0;
    /// Convert fonts to have this trait: one of `FontTraits`; 0 is no change.
    /// A font that is still bold after `kFontUnbold` becomes lighter by one
    /// more step.
    std::uint32_t trait = 0;
    /// The foreground colour.
    std::optional<Color> color = {};
    /// The underline style.
    std::int32_t underline = kKeepLine;
    /// The strikethrough style.
    std::int32_t strikethrough = kKeepLine;
    /// 1 superscript, -1 subscript, 0 back to the baseline. The preference
    /// "SuperSubscript Percentage" (0.75) is the factor P between sizes: a
    /// raised or lowered font of S points has floor(S * P), one on the baseline
    /// again ceil(S / P). Deliberately each change scales anew, and a range
    /// takes the font of its start. Other levels change the size alone.
    std::int32_t superscript = kKeepSuperscript;
    /// The background colour; the clear colour removes it.
    std::optional<Color> background = {};
};

/// What a paragraph command changes.
struct ParagraphChange {
    /// The alignment that means no change.
    static constexpr std::int64_t kKeepAlignment = -1;
    /// The line height that means no change.
    static constexpr float kKeepLineHeight = -1.0F;

    /// A number of `TextAlignment`; one beyond them means natural.
    std::int64_t alignment = kKeepAlignment;
    /// Both the least and the greatest line height, in points; what is not
    /// finite is no change.
    float lineHeight = kKeepLineHeight;
};

/// Changes the characters in `range`, as one batch of edits, and then makes the
/// attributes of the whole text consistent. A font that is asked for and
/// missing is made from the user's default font. Nothing happens in an empty
/// range.
QZ_EXPORT void changeCharacters(RichText& text, Range range, const CharacterChange& change);

/// Changes the characters in each range in turn, and for each empty one, also
/// at `kNotFound`, the typing attributes.
QZ_EXPORT void changeCharacters(RichText& text, const std::vector<Range>& ranges,
                                TextAttributes& typingAttributes, const CharacterChange& change);

/// Changes the paragraph styles in `range`, as one batch of edits, and then
/// makes the attributes of the whole text consistent. A missing style counts as
/// the default one. Nothing happens at `kNotFound`.
QZ_EXPORT void changeParagraphs(RichText& text, Range range, const ParagraphChange& change);

/// Changes the paragraph styles in `range` and, when that is empty, also that
/// of the typing attributes.
QZ_EXPORT void changeParagraphs(RichText& text, Range range, TextAttributes& typingAttributes,
                                const ParagraphChange& change);

/// The attributes of what is typed next after a change of characters.
[[nodiscard]] QZ_EXPORT TextAttributes typingAttributesAfter(const TextAttributes& attributes,
                                                             const CharacterChange& change);

/// The attributes of what is typed next after a change of paragraphs.
[[nodiscard]] QZ_EXPORT TextAttributes typingAttributesAfter(const TextAttributes& attributes,
                                                             const ParagraphChange& change);

}  // namespace QZCore
