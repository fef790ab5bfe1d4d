#include "foundation/file_links.h"

namespace QZCore {

namespace fs = std::filesystem;

std::optional<fs::path> withoutLinks(fs::path path) {
    constexpr int kMostLinks = 40;
    for (int i = 0; i < kMostLinks; ++i) {
        std::error_code error;
        const fs::path target = fs::read_symlink(path, error);
        if (error) return path;
        path = path.parent_path() / target;
    }
    return std::nullopt;
}

}  // namespace QZCore
