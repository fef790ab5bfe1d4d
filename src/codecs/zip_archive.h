// ZIP archives whose files are stored as they are.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "QZCore/foundation/data.h"

namespace QZCore {

/// Makes an archive, file by file. The same files give the same bytes.
class ZipWriter {
public:
    /// Adds a file; `name` is ASCII with "/" between folders. Files of 4 GiB
    /// and more have no place in such an archive.
    void add(std::string_view name, DataView contents);
    /// The archive.
    [[nodiscard]] Data finish();

private:
    Data archive_;
    Data directory_;
    std::uint16_t files_ = 0;
};

/// The files of an archive by their names, as parts of `archive`. Files that
/// are compressed, encrypted or damaged are left out; what is no archive holds
/// none.
[[nodiscard]] std::map<std::string, DataView> filesInZip(DataView archive);

}  // namespace QZCore
