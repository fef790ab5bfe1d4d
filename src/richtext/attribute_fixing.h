// Fixing of attributes: what a text's attributes must satisfy after edits.
#pragma once

#include "richtext/font_fixing.h"
#include "richtext/paragraph_fixing.h"

namespace QZCore {

/// Fixes texts, one after the other, whose runs are numbered by one palette
/// that is handed from text to text.
class AttributeFixing {
public:
    /// Fonts are looked up in `catalog`, which must outlive this.
    explicit AttributeFixing(const FontCatalog& catalog) : fonts_(catalog) {}

    /// Takes attachments from all but attachment characters, gives each
    /// paragraph one paragraph style and each character a font that shows it.
    void fixAttributes(FlatText& text);

private:
    void fixAttachments(FlatText& text);

    bool hasAttachments_ = false;
    std::uint32_t knownIds_ = 0;  // how many were asked for attachments
    ParagraphFixing paragraphs_;
    FontFixing fonts_;
};

}  // namespace QZCore
