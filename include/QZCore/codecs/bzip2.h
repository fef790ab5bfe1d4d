// bzip2 compression.
//
// Compressed data may be stored: what one version writes every other reads.
// Every function may be called from any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"

namespace QZCore {

/// `data` as a bzip2 stream with blocks of 500,000 bytes. Empty data gives empty
/// data, and so does an error of the library, the only one being data of about
/// 4 GiB or more; it logs "-[NSData compressBZip2]: error NUMBER returned".
[[nodiscard]] QZ_EXPORT Data compressBZip2(DataView data);

/// What the bzip2 stream at the start of `data` holds; what follows the stream
/// is not read. A stream that is cut short gives what comes before the cut. One
/// that is damaged gives what was read until that came to light, without the
/// 10,240 bytes in which it did: all blocks before the damage, and of the damaged
/// one, whose check stands at its end, up to 900,000 bytes that are mostly wrong.
/// Absent and empty data give no data.
///
/// A few bytes can stand for gigabytes, and are given the memory that they need:
/// data from elsewhere should be read with a limit. A stream that holds more
/// bytes than `limit` gives no data, and is read no further than that.
[[nodiscard]] QZ_EXPORT std::optional<Data> dataWithBZip2Data(const std::optional<DataView>& data,
                                                              std::size_t limit = SIZE_MAX);

}  // namespace QZCore
