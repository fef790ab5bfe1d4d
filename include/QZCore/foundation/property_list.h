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

/// What reading gave: the value, or an absent value and the reason in words.
struct PropertyListResult {
    /// What was read.
    Value value;
    /// Empty when reading succeeded.
    String error;
};

/// Whether the containers that are read can be changed later.
enum class PropertyListContainers { Immutable, Mutable };

/// Reads an XML or a binary property list. Everything that is not exactly one
/// well-formed list gives an absent value and an error: a document type with
/// declarations of its own, unknown entities or elements, numbers that are
/// none, bytes that are not UTF-8, cut-off input, nesting deeper than the
/// limit, binary lists whose sharing would unfold beyond a fixed multiple of
/// their size. A UTF-8 byte-order mark is accepted. A date is read as
/// year-month-dayThour:minute:secondZ, the astronomical year with an optional
/// sign.
[[nodiscard]] QZ_EXPORT PropertyListResult readPropertyList(
    DataView bytes, PropertyListContainers containers = PropertyListContainers::Immutable);

/// What writing gave: the bytes, or nothing and the reason in words.
struct PropertyListData {
    /// The whole list.
    std::optional<Data> data;
    /// Empty when writing succeeded.
    String error;
};

/// Writes `value` as an XML property list, format 1.0, with dictionary keys in
/// the dictionary's order. What a property list cannot hold gives no data and
/// an error: absent values, sets, URLs, objects, keys that are not strings,
/// texts with control characters or unpaired surrogates, nesting deeper than
/// the limit. Reals are written in their shortest form, so that they read back
/// exactly; "nan", "+infinity" and "-infinity" stand for what is not finite.
/// Dates are written in whole seconds; years outside 1 to 9999 carry a sign.
[[nodiscard]] QZ_EXPORT PropertyListData writePropertyList(const Value& value);

}  // namespace QZCore
