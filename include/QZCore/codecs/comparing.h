// Comparing and testing: versions, file names, and searches with options.
//
// Comparisons return -1, 0 or 1 when the first text comes before the second,
// counts as equal, or comes after it. `boolValue`, the test of a text for yes
// or no, and the integer readings are in foundation/text.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

// ---- Orders -----------------------------------------------------------------

/// Compares the leading integers of the parts between the dots, from the left.
/// A missing part and one without a number count as 0: "1.2" equals "1.2.0",
/// and "1.10" comes after "1.9". Integers are clamped to 64 bits.
[[nodiscard]] QZ_EXPORT int compareToVersion(StringView text, StringView version);

/// Compares two names as a file browser sorts them: by the collation rules of
/// the user's locale, without regard to case, and with digit runs of any length
/// compared by value ("file 2" before "file 10"). Canonically equivalent texts
/// are equal; accents count.
///
/// The locale is the string under "Locale" in `Preferences::shared()`, or the
/// process's own (LC_ALL, LC_COLLATE, LANG) when that is absent or empty. The
/// C locale and unknown ones compare by the rules that all languages share.
[[nodiscard]] QZ_EXPORT int finderFileComparison(StringView text, StringView other);

/// The same in a given locale, as "de_DE" or "de-DE"; "" stands for the rules
/// that all languages share.
[[nodiscard]] QZ_EXPORT int finderFileComparison(StringView text, StringView other,
                                                 StringView locale);

/// Whether both are equal without regard to case, by full Unicode case folding
/// ("STRASSE" equals "straße") and canonical equivalence, in every locale.
[[nodiscard]] QZ_EXPORT bool isCaseInsensitiveEqualToString(StringView text, StringView string);

// ---- Searches ---------------------------------------------------------------

/// Options of a search, to be added up. The numbers may be stored; bits that
/// are not listed have no effect.
enum SearchOptions : std::uint32_t {
    kSearchNoOptions = 0,
    kSearchCaseInsensitive = 1,         // by full Unicode case folding
    kSearchLiteral = 2,                 // code points as they are, not as users see them
    kSearchBackwards = 4,               // from the end; together with anchored, only at the end
    kSearchAnchored = 8,                // only at the start of the range
    kSearchNumeric = 64,                // no effect on a search
    kSearchDiacriticInsensitive = 128,  // accents and vowel points do not count
    kSearchWidthInsensitive = 256,      // full-width and half-width forms count as plain ones
    kSearchRegularExpression = 1024,    // the text is a pattern; beside it only case
                                        // insensitive and anchored have an effect
};

/// Whether a search for `string` finds something that is not empty.
///
/// Unless the search is literal, canonically equivalent texts match and a match
/// neither starts nor ends within a character: "e" is not found in an "é",
/// whether that is stored as one code point or as two. With a regular expression the
/// first match decides; a pattern that is not well-formed finds nothing.
[[nodiscard]] QZ_EXPORT bool containsString(StringView text, StringView string,
                                            std::uint32_t options);

/// The same in the part of `text` in `range`, which is cut to the text.
[[nodiscard]] QZ_EXPORT bool containsString(StringView text, StringView string,
                                            std::uint32_t options, Range range);

/// Whether one of `strings` occurs in `text`, unit by unit. An empty string
/// occurs nowhere.
[[nodiscard]] QZ_EXPORT bool stringContainsStringFromArray(StringView text,
                                                           const std::vector<String>& strings);

/// The number of occurrences of `string`, unit by unit and counted from the
/// left without overlaps; 0 for an empty string.
[[nodiscard]] QZ_EXPORT std::size_t countOccurrencesOfString(StringView text, StringView string);

/// Whether `text` holds a character that is neither a space or tab nor a line
/// end (`isWhitespaceOrNewline`).
[[nodiscard]] QZ_EXPORT bool containsNonWhitespace(StringView text);

}  // namespace QZCore
