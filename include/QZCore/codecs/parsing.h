// Parsing and composing: comma-separated rows, templates, pieces of a text,
// bytes in an encoding, ratings and random strings.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

// ---- Taking apart -----------------------------------------------------------

/// `text` read as comma-separated rows of fields.
///
/// Double quotes may open and close anywhere in a field and are not kept;
/// between them commas and line ends belong to the field and a doubled quote
/// stands for one. Spaces and tabs (`isWhitespace`) directly after a separating
/// comma are skipped; all other blanks are kept, those before a quote included.
/// An empty last field is dropped ("a,b," has two fields), an empty one before
/// it is kept, and a row without fields, as a blank line is, gives no row. A
/// quote that is never closed takes the rest of the text. A byte-order mark is
/// part of the first field; `stringWithData` leaves it out.
[[nodiscard]] QZ_EXPORT std::vector<std::vector<String>> csvRowsOfColumns(StringView text);

/// The contents of the lines of `text`, without their terminators "\n", "\r",
/// "\r\n", U+0085, U+2028 and U+2029.
///
/// After each line the search goes on one unit behind the start of the next,
/// so that a line of one unit, its terminator counted, is passed over when it
/// follows a line that was returned: an empty line that ends in "\n", and a
/// single character that ends the text without a terminator. A run of empty
/// lines thus loses every second one. An empty first line, and an empty line
/// that ends in "\r\n", are returned. Deliberate: stored outlines were split
/// this way.
[[nodiscard]] QZ_EXPORT std::vector<String> componentsSeparatedByLineSeparators(StringView text);

/// The pieces of `text` between the matches of the regular expression
/// `pattern`, the pieces before the first and after the last match included,
/// empty ones too. A match of length 0 splits as any other. The whole text is
/// the only piece when nothing matches or `pattern` is empty or not well-formed;
/// matching has the bounds of platform/regex.h.
[[nodiscard]] QZ_EXPORT std::vector<String> componentsSeparatedByPattern(StringView text,
                                                                         StringView pattern);

// ---- Composing --------------------------------------------------------------

/// A copy of `stringTemplate` in which every occurrence of every key is
/// replaced by the key's value.
///
/// The keys are the complete tags, delimiters included. Occurrences are found
/// as `containsString` finds them under `kSearchCaseInsensitive`. The keys are
/// applied one after the other in the dictionary's order, so that a value that
/// contains a later key is itself filled in. Values are strings, numbers (in
/// their shortest decimal form) or URLs; the tag of any other value stays as it
/// is. Keys that are empty or no strings are passed over.
[[nodiscard]] QZ_EXPORT String stringFromTemplate(StringView stringTemplate,
                                                  const Dictionary& withTagValues);

/// `rating` filled stars (U+2605), at most five and none for a rating below 1;
/// then, when asked for, hollow stars (U+2606) up to five symbols in all.
[[nodiscard]] QZ_EXPORT String stringForRating(std::int64_t rating, bool withHollowStars);

/// `length` characters, each drawn with equal chance from the 62 ASCII letters
/// and digits by the system's secure random source. Empty when the system has
/// no such source, or when `length` is above 1,000,000,000.
[[nodiscard]] QZ_EXPORT String randomStringWithLength(std::size_t length);

// ---- Bytes in an encoding ---------------------------------------------------

/// How bytes stand for a text. The numbers may be stored.
enum class TextEncoding : std::uint32_t {
    Ascii = 1,                       // seven bits
    EucJapanese = 3,                 // EUC-JP
    Utf8 = 4,                        // a byte-order mark at the start is left out
    IsoLatin1 = 5,                   // ISO 8859-1, which every sequence of bytes is valid in
    ShiftJis = 8,                    // Shift_JIS
    IsoLatin2 = 9,                   // ISO 8859-2
    Utf16 = 10,                      // the byte-order mark decides, big-endian without one
    Windows1251 = 11,                // Cyrillic
    Windows1252 = 12,                // Western European
    Windows1253 = 13,                // Greek
    Windows1254 = 14,                // Turkish
    Windows1250 = 15,                // Central European
    Utf32 = 0x8C000100,              // the byte-order mark decides, big-endian without one
    Utf16BigEndian = 0x90000100,     // a byte-order mark is kept as U+FEFF
    Utf16LittleEndian = 0x94000100,  // a byte-order mark is kept as U+FEFF
    Utf32BigEndian = 0x98000100,     // a byte-order mark is kept as U+FEFF
    Utf32LittleEndian = 0x9C000100,  // a byte-order mark is kept as U+FEFF
};

/// `data` decoded; nothing when it is not valid in `encoding` (a piece of a
/// character at its end and unpaired surrogates included), or when `encoding`
/// is none of the above.
[[nodiscard]] QZ_EXPORT std::optional<String> stringWithData(DataView data, TextEncoding encoding);

}  // namespace QZCore
