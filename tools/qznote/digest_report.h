// What the bytes of a file come to.
#pragma once

#include <string>

#include "QZCore/foundation/data.h"

namespace qznote {

/// The checksums and digests of `data`, "name: value", one a line.
[[nodiscard]] std::string digestReport(QZCore::DataView data);

}  // namespace qznote
