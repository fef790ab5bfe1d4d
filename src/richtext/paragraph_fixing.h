// Paragraph styles belong to whole paragraphs.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "richtext/flat_text.h"
#include "richtext/number_map.h"

namespace QZCore {

/// Whether a paragraph ends behind the unit before `position`, which must not
/// be 0: behind a line feed, a carriage return (but not between the two) or a
/// paragraph separator.
[[nodiscard]] bool paragraphEndsBefore(StringView text, std::size_t position);

/// Whether `text` holds a unit that ends paragraphs.
[[nodiscard]] bool holdsParagraphEnd(StringView text);

/// Fixes texts, one after the other, whose runs are numbered by one palette.
class ParagraphFixing {
public:
    /// All of a paragraph takes the paragraph style of its first character.
    void fixParagraphStyles(FlatText& text);

private:
    class Walk;

    /// Styles of equal content are one.
    struct SameStyle {
        bool operator()(const ParagraphStyle* a, const ParagraphStyle* b) const {
            return a == b || *a == *b;
        }
        std::size_t operator()(const ParagraphStyle* style) const { return hashOf(*style); }
    };

    [[nodiscard]] std::uint32_t styleOf(std::uint32_t id, const AttributePalette& palette);
    [[nodiscard]] std::uint32_t numberOf(const ParagraphStyle* style);
    [[nodiscard]] std::uint32_t withStyle(std::uint32_t id, std::uint32_t style,
                                          AttributePalette& palette);

    static constexpr std::uint32_t kUnknown = UINT32_MAX;
    static constexpr std::uint32_t kNoStyle = 0;

    std::unordered_map<const ParagraphStyle*, std::uint32_t, SameStyle, SameStyle> numbers_;
    // Most sets share their style as an object.
    const ParagraphStyle* last_ = nullptr;
    std::uint32_t lastNumber_ = kNoStyle;
    std::vector<Value> styles_{Value()};           // by their numbers
    std::vector<NumberMap> changed_{NumberMap()};  // by the number of the style put in
    std::vector<std::uint32_t> styleOf_;           // by the number of the attributes
};

}  // namespace QZCore
