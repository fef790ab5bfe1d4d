// Dictionaries and arrays as property-list data, the form in which they are
// stored (`QZCore/foundation/property_list.h`).
//
// A failure gives nothing and one log line with the reason. Containers that are
// read, nested ones too, are immutable.
#pragma once

#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// The dictionary that `data` is the XML or binary property list of. Logs
/// "Error converting data to NSDictionary: REASON", also for a list of another
/// kind.
[[nodiscard]] QZ_EXPORT std::optional<Dictionary> dictionaryWithData(DataView data);

/// The array that `data` is the XML or binary property list of. Logs "Error
/// converting data to NSArray: REASON", also for a list of another kind.
[[nodiscard]] QZ_EXPORT std::optional<Array> arrayWithData(DataView data);

/// `dictionary` as an XML property list. Logs "Error converting NSDictionary to
/// data: REASON" when it holds what a property list cannot.
[[nodiscard]] QZ_EXPORT std::optional<Data> dataRepresentation(const Dictionary& dictionary);

/// `array` as an XML property list. Logs "Error converting NSArray to data:
/// REASON" when it holds what a property list cannot.
[[nodiscard]] QZ_EXPORT std::optional<Data> dataRepresentation(const Array& array);

}  // namespace QZCore
