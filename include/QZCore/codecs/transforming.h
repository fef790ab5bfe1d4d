// Transforming: texts made from texts.
#pragma once

#include <optional>

#include "QZCore/codecs/character_set.h"
#include "QZCore/export.h"
#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

// ---- Parts and characters ---------------------------------------------------

/// The part of `text` in `range`. When the range does not lie within the text,
/// one line is logged and the result is empty.
[[nodiscard]] QZ_EXPORT String safeSubstringWithRange(StringView text, Range range);

/// `text` without the characters of `set`.
[[nodiscard]] QZ_EXPORT String stringByRemovingCharactersInSet(StringView text,
                                                               const CharacterSet& set);

/// `text` with each single character of `set` replaced by `withString`.
[[nodiscard]] QZ_EXPORT String stringByReplacingCharactersInSet(StringView text,
                                                                const CharacterSet& set,
                                                                StringView withString);

/// Removes the white space at the start of `text`; that at its end stays. A
/// text of white space alone becomes empty.
///
/// That is what the pattern "(^\s+)|(\s+$)" finds when its search is anchored
/// at the start: a run that begins there, and nothing else. White space is what
/// `isWhitespaceOrNewline` and the pattern's "\s" (the Unicode property
/// White_Space) agree on.
QZ_EXPORT void trimWhitespace(String& text);

// ---- Words and letters ------------------------------------------------------

/// `text` with a space before every upper-case letter
/// (`CharacterSet::uppercaseLetters`) that is not the first character, and then
/// every word capitalised: its first letter upper case, the rest lower case.
/// Words are separated by white space. "XMLParser" gives "X M L Parser".
[[nodiscard]] QZ_EXPORT String stringByExpandingJoinedCapitalizedWords(StringView text);

/// `text` with every unit from "A" to "z" moved 13 places in the alphabet. The
/// six characters between "Z" and "a" are moved as well, as if they were
/// lower-case letters: "[" gives "h". Deliberate: stored texts depend on it.
[[nodiscard]] QZ_EXPORT String rot13(StringView text);

/// `text` with its composed characters in reverse order. A surrogate pair, a
/// base with its combining marks, a syllable of conjoining letters, a flag and
/// an emoji sequence each stay together and in order. The characters of "\r\n"
/// are two.
[[nodiscard]] QZ_EXPORT String reverse(StringView text);

// ---- Markup -----------------------------------------------------------------

/// `text` without comments and tags. Tags that begin with "<span", "</span>",
/// or are "<b>", "<u>", "<i>" or their ends vanish, "<p>", "</p>" and "<p/>"
/// become "\n", all others a space; names are compared exactly. Without the end
/// of a tag or a comment, the rest of the text stays without the opening "<" or
/// "<!--". Of entities "&nbsp;", "&lt;" and "&gt;" are decoded, and "%20".
[[nodiscard]] QZ_EXPORT String stringByRemovingHTML(StringView text);

// ---- Encodings for transport ------------------------------------------------
//
// The encoders write UTF-8; an unpaired surrogate, which has no such form, is
// written as U+FFFD.

/// Every byte of the text's UTF-8 form as "=" and two upper-case hexadecimal
/// digits, without line breaks.
[[nodiscard]] QZ_EXPORT String stringToQuotedPrintableFormat(StringView text);

/// `text` without soft line breaks ("=" and "\r\n") and with every "=" and two
/// hexadecimal digits read as a byte of UTF-8; everything else stays. Bytes
/// that are written with "%" are read as well. Nothing when a "=" or "%" is not
/// followed by two digits, or when the bytes are not UTF-8.
[[nodiscard]] QZ_EXPORT std::optional<String> stringFromQuotedPrintableFormat(StringView text);

/// `text` with everything percent-encoded that may not stand in the path of a
/// URL (RFC 3986): all but ASCII letters, digits, "-._~", "!$&'()*+,;=", ":",
/// "@" and "/".
[[nodiscard]] QZ_EXPORT String percentEncodePath(StringView text);

/// `text` with everything percent-encoded that may not stand unescaped in a
/// value of a URL's query: all but ASCII letters, digits, "-._~", "/" and "?".
[[nodiscard]] QZ_EXPORT String percentEncodeQuery(StringView text);

}  // namespace QZCore
