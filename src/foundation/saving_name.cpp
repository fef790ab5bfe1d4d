#include "foundation/saving_name.h"

#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <string>

namespace QZCore {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSuffix = ".saving";

std::string prefixFor(const fs::path& file) {
    constexpr std::size_t kKept = 180;  // leaves room in a name of 255 bytes
    return "." + file.filename().string().substr(0, kKept) + ".";
}

bool isSavingName(std::string_view name, std::string_view prefix) {
    if (name.size() <= prefix.size() + kSuffix.size()) return false;
    if (!name.starts_with(prefix) || !name.ends_with(kSuffix)) return false;
    name.remove_prefix(prefix.size());
    name.remove_suffix(kSuffix.size());
    return name.find_first_not_of("0123456789-") == std::string_view::npos;
}

}  // namespace

fs::path nextSavingName(const fs::path& file) {
    static std::atomic<std::uint64_t> number = 0;
    const std::string start = prefixFor(file) + std::to_string(::getpid()) + "-";
    fs::path name;
    std::error_code error;
    do {
        name = file.parent_path() / (start + std::to_string(number++) + std::string(kSuffix));
    } while (fs::exists(fs::symlink_status(name, error)));
    return name;
}

void removeStaleSavings(const fs::path& file) {
    const std::string prefix = prefixFor(file);
    const auto hourAgo = fs::file_time_type::clock::now() - std::chrono::hours(1);
    std::error_code error;
    fs::directory_iterator entry(folderOf(file), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (!isSavingName(entry->path().filename().string(), prefix)) continue;
        std::error_code ignored;
        const auto touched = entry->last_write_time(ignored);
        if (!ignored && touched < hourAgo) fs::remove(entry->path(), ignored);
    }
}

fs::path folderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

}  // namespace QZCore
