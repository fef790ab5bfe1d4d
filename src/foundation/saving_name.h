// The names of new files on their way to take an old one's place.
#pragma once

#include <filesystem>

namespace QZCore {

/// A name beside `file` that no other save uses: ".NAME.PROCESS-NUMBER.saving".
/// It is free: a stopped process may have had the same number as this one.
[[nodiscard]] std::filesystem::path nextSavingName(const std::filesystem::path& file);

/// Removes what stopped saves of `file` have left behind: files with such
/// names that nobody has touched for an hour, and so nobody can be writing.
void removeStaleSavings(const std::filesystem::path& file);

/// The folder that holds `file`.
[[nodiscard]] std::filesystem::path folderOf(const std::filesystem::path& file);

}  // namespace QZCore
