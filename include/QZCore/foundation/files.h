// Whole files in and out.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"

namespace QZCore {

/// The bytes of the file at `path` (in the file system's own encoding);
/// nothing when it cannot be read, is longer than `limit`, or is no plain file.
/// Never waits for one: a named pipe, a device or a folder is refused.
[[nodiscard]] QZ_EXPORT std::optional<Data> readFile(const std::string& path,
                                                     std::size_t limit = SIZE_MAX);

/// Replaces the file at `path` by `bytes`, or makes it, and returns whether
/// that succeeded. The file is whole before or after, whatever happens in
/// between: the bytes go to a new file in the same folder, which is flushed to
/// the disk and then takes the name. An existing file's permissions are kept,
/// and a symbolic link is followed to the file that it names.
[[nodiscard]] QZ_EXPORT bool writeFileAtomically(const std::string& path, DataView bytes);

}  // namespace QZCore
