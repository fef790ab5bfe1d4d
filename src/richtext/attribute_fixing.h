// Fixing of attributes: what a text's attributes must satisfy after edits.
#pragma once

#include "richtext/flat_text.h"

namespace QZCore {

class FontCatalog;

/// Whether a paragraph ends behind the unit before `position`, which must not
/// be 0: behind a line feed, a carriage return (but not between the two) or a
/// paragraph separator.
[[nodiscard]] bool paragraphEndsBefore(StringView text, std::size_t position);

/// Attachments stay only on attachment characters.
void fixAttachments(FlatText& text);

/// All of a paragraph takes the paragraph style of its first character.
void fixParagraphStyles(FlatText& text);

/// A font that cannot show a character is replaced, for that character and the
/// marks that join it, by one that can. Characters that no font shows keep
/// theirs.
void fixFonts(FlatText& text, const FontCatalog& catalog);

/// All three.
void fixAttributes(FlatText& text, const FontCatalog& catalog);

}  // namespace QZCore
