// Dictionaries: made from key-value texts and arrays, searched by object,
// compared, merged and reversed.
//
// The operations take the dictionary first; `mergeWithDictionary` alone changes
// it. Separators and keys are compared unit by unit; an empty separator splits
// nothing. Parts of a text that do not fit are passed over, and nothing is
// logged. Different threads may read the same dictionary at once.
#pragma once

#include "QZCore/export.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

// ---- Made from texts and arrays ---------------------------------------------

/// The pairs of `queryString`, the parts between its "&" that hold one "=": the
/// text before it is the key, the text behind it the value, either of them
/// possibly empty. Neither is trimmed or percent-decoded. Other parts give
/// nothing. Of equal keys the last counts.
[[nodiscard]] QZ_EXPORT Dictionary dictionaryWithQueryString(StringView queryString);

/// The pairs of `string`, the parts between `keysSeparatedBy` that hold one
/// `keyValueSeparatedBy`: key and value are trimmed of spaces and tabs, and
/// count when neither is empty then. Of equal keys the last counts.
[[nodiscard]] QZ_EXPORT Dictionary dictionaryWithKeyObjectString(StringView string,
                                                                 StringView keyValueSeparatedBy,
                                                                 StringView keysSeparatedBy);

/// The pieces of `string` between the separators as keys and values by turns,
/// untrimmed. A separator at the very start is dropped first. An odd number of
/// pieces gives an empty dictionary.
[[nodiscard]] QZ_EXPORT Dictionary dictionaryWithKeyObjectString(StringView string,
                                                                 StringView separatedByString);

/// Elements 0, 2, 4 and so on of `array` as keys, each with the element behind
/// it as its value. An odd number of elements gives an empty dictionary. Of
/// equal keys the last counts.
[[nodiscard]] QZ_EXPORT Dictionary dictionaryWithKeyObjectArray(const Array& array);

// ---- Searching and comparing ------------------------------------------------

/// The first key in the dictionary's order whose value is equal to `object`;
/// absent when there is none.
[[nodiscard]] QZ_EXPORT Value keyForObject(const Dictionary& dictionary, const Value& object);

/// The first key in the dictionary's order whose value is identical to
/// `object`; absent when there is none.
[[nodiscard]] QZ_EXPORT Value keyForIdenticalObject(const Dictionary& dictionary,
                                                    const Value& object);

/// Whether `other` holds an equal value under every key of `dictionary`. It may
/// hold more keys.
[[nodiscard]] QZ_EXPORT bool isUnchangedSubsetOf(const Dictionary& dictionary,
                                                 const Dictionary& other);

// ---- Merging and reversing --------------------------------------------------

/// The entries of `dictionary` and those of `other`, which win. Nested
/// dictionaries are replaced, not merged.
[[nodiscard]] QZ_EXPORT Dictionary dictionaryByMergingWithDictionary(const Dictionary& dictionary,
                                                                     const Dictionary& other);

/// Stores the entries of `other` in `dictionary`. Where it holds a mutable
/// dictionary and the new value is a dictionary too, the new one is merged into
/// that in the same way, to any depth; an immutable dictionary is replaced. A
/// key that is a mutable container is stored as an immutable copy.
///
/// Dictionaries that hold themselves or are shared come to an end: a pair that
/// is already being merged is not merged again inside itself, and merging pairs
/// over again stops after a million entries.
QZ_EXPORT void mergeWithDictionary(Dictionary& dictionary, const Dictionary& other);

/// A dictionary with the values of `dictionary` as keys and its keys as values.
/// Of equal values the last one's key counts.
[[nodiscard]] QZ_EXPORT Dictionary dictionaryReversingKeysAndObjects(const Dictionary& dictionary);

}  // namespace QZCore
