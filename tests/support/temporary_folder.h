// A folder for the files of one test.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <string>

namespace QZCore::testing {

/// A new, empty folder that goes away with everything in it.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "qzcore-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// The path of the folder.
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    /// The path of `name` in the folder.
    [[nodiscard]] std::string operator/(const std::string& name) const {
        return (path_ / name).string();
    }

    /// How many files and folders are in it.
    [[nodiscard]] std::ptrdiff_t count() const {
        return std::distance(std::filesystem::directory_iterator(path_), {});
    }

private:
    std::filesystem::path path_;
};

}  // namespace QZCore::testing
