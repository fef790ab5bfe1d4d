// Property lists: the stored form of settings, dictionaries and archives.
//
// Written as XML; read as XML and in the binary form. A property list holds
// strings, numbers, booleans, dates, data, arrays and dictionaries with string
// keys. Nothing here depends on the host's locale.
//
// Nothing here keeps state; every function may be called from any thread.
#pragma once

#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// The deepest nesting of containers that is read or written.
inline constexpr int kPropertyListDepthLimit = 512;

/// What reading gave: the value, or an absent value and the reason in words,
/// in the XML form with the number of the line.
struct PropertyListResult {
    /// What was read; absent when nothing was.
    Value value;
    /// The reason; empty when something was read.
    String error;
};

/// Whether the containers that are read can be changed later.
enum class PropertyListContainers { Immutable, Mutable };

/// Reads an XML or a binary property list. Everything that is not exactly one
/// well-formed list gives an absent value and an error: a document type with
/// declarations of its own, unknown entities, elements or attributes, numbers
/// that are none or need more than 64 bits, texts that could not be written
/// again, bytes that are not UTF-8, cut-off input, nesting deeper than the
/// limit. A UTF-8 byte-order mark is accepted. Of equal keys the last counts.
///
/// A date is read as year-month-dayThour:minute:secondZ, the astronomical year
/// (0 is 1 BC) of the proleptic Gregorian calendar with an optional sign.
///
/// In the binary form sets are read as arrays and references of archives as
/// integers. A list whose containers share others so often that it unfolds to
/// more than 65,536 values and four more for each byte gives an error.
///
/// Every value that is read can be written, unless that takes too many bytes.
[[nodiscard]] QZ_EXPORT PropertyListResult readPropertyList(
    DataView bytes, PropertyListContainers containers = PropertyListContainers::Immutable);

/// What writing gave: the bytes, or nothing and the reason in words.
struct PropertyListData {
    /// The bytes; nothing when the value cannot be written.
    std::optional<Data> data;
    /// The reason; empty when there are bytes.
    String error;
};

/// Writes `value` as an XML property list, format 1.0, with dictionary keys in
/// the dictionary's order. What a property list cannot hold gives no data and
/// an error: absent values, sets, URLs, objects, keys that are not strings,
/// texts with control characters or unpaired surrogates, dates that are no
/// number or further than 2^53 seconds away, nesting deeper than the limit
/// (containers that hold themselves are), more than a gibibyte.
///
/// Reals are written in their shortest form, so that they read back exactly;
/// "nan", "+infinity" and "-infinity" stand for what is not finite. Dates are
/// rounded to whole seconds; years before 0 and after 9999 carry a sign.
[[nodiscard]] QZ_EXPORT PropertyListData writePropertyList(const Value& value);

}  // namespace QZCore
