// The readers of the two stored forms of a property list.
#pragma once

#include "QZCore/foundation/property_list.h"

namespace QZCore {

/// Reads the XML form.
[[nodiscard]] PropertyListResult readXmlPropertyList(DataView bytes,
                                                     PropertyListContainers containers);

/// Whether `bytes` begin like the binary form.
[[nodiscard]] bool isBinaryPropertyList(DataView bytes);

/// Reads the binary form.
[[nodiscard]] PropertyListResult readBinaryPropertyList(DataView bytes,
                                                        PropertyListContainers containers);

}  // namespace QZCore
