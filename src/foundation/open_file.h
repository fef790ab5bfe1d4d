// A file of the operating system, open.
#pragma once

#include <sys/types.h>

#include <optional>
#include <span>
#include <string>

#include "QZCore/foundation/data.h"

namespace QZCore {

/// An open file that closes itself. Interrupted calls are repeated.
class OpenFile {
public:
    /// Opens `path` as open(2) does; `isOpen` tells whether that succeeded.
    OpenFile(const std::string& path, int flags, mode_t mode = 0);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] int descriptor() const { return descriptor_; }

    /// How long the file is, as far as the system knows; nothing for what is no
    /// plain file: a folder, a pipe, a device.
    [[nodiscard]] std::optional<std::size_t> sizeIfPlain() const;

    /// The next bytes into `buffer`: how many, 0 at the end, nothing when they
    /// cannot be read.
    [[nodiscard]] std::optional<std::size_t> read(std::span<std::uint8_t> buffer) const;

    /// Writes all of `bytes`.
    [[nodiscard]] bool write(DataView bytes) const;

    /// Waits until the file, or the folder, is on the disk. A file system that
    /// cannot tell has done what it can.
    [[nodiscard]] bool flush() const;

    /// Closes the file and returns whether all that was written arrived.
    [[nodiscard]] bool close();

private:
    int descriptor_ = -1;
};

}  // namespace QZCore
