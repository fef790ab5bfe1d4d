// What libbz2 does for the library.
#pragma once

#include <cstddef>
#include <optional>

#include "QZCore/foundation/data.h"

namespace QZCore {

/// Makes `out` the bzip2 form of `data`. Returns 0, or the error number of the
/// library, in which case `out` is empty.
[[nodiscard]] int compressBzip2(Data& out, DataView data);

/// The contents of the bzip2 stream that `data` begins with, up to the first
/// fault or to where `data` ends; nothing when they are more than `limit`.
[[nodiscard]] std::optional<Data> decompressBzip2(DataView data, std::size_t limit);

}  // namespace QZCore
