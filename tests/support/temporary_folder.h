// A folder for the files of one test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace QZCore::testing {

/// A new, empty folder, which is removed with all that it holds.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = std::filesystem::temp_directory_path() / "qzcore-test-XXXXXX";
        if (::mkdtemp(pattern.data()) != nullptr) path_ = pattern;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

}  // namespace QZCore::testing
