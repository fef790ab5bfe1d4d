// Symbolic links to files.
#pragma once

#include <filesystem>
#include <optional>

namespace QZCore {

/// The file that `path` names in the end, when it is a symbolic link; it need
/// not exist. Nothing when the links lead in a circle.
[[nodiscard]] std::optional<std::filesystem::path> withoutLinks(std::filesystem::path path);

}  // namespace QZCore
