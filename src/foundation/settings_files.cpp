#include "foundation/settings_files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "QZCore/foundation/files.h"
#include "foundation/file_links.h"

namespace QZCore {
namespace {

/// Larger files are not written, so they are not read.
constexpr std::size_t kLargestFile = std::size_t{1} << 30;

bool isMissing(const std::string& path) {
    struct ::stat standing = {};
    return ::stat(path.c_str(), &standing) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

bool isPlainFile(const std::string& path) {
    struct ::stat standing = {};
    return ::lstat(path.c_str(), &standing) == 0 && S_ISREG(standing.st_mode);
}

/// The one name of the file that `path` leads to.
std::string ownName(const std::string& path) {
    std::error_code error;
    const auto name = std::filesystem::weakly_canonical(path, error);
    return error ? path : name.string();
}

PropertyListResult readDictionaryFile(const std::string& path) {
    const auto bytes = readFile(path, kLargestFile);
    if (!bytes) {
        if (isMissing(path)) return {Value(Dictionary()), {}};
        return {Value(), u"the file cannot be read"};
    }
    PropertyListResult result = readPropertyList(*bytes);
    if (!result.error.empty() || result.value.dictionary() != nullptr) return result;
    return {Value(), u"the list is no dictionary"};
}

/// Gives the file at `path` the name `aside` as well, or, where files can have
/// but one name, instead. False when the name is taken.
bool nameAside(const std::string& path, const std::string& aside) {
    if (::link(path.c_str(), aside.c_str()) == 0) return true;
    if (errno == EEXIST || ::access(aside.c_str(), F_OK) == 0) return false;
    return std::rename(path.c_str(), aside.c_str()) == 0;
}

/// Keeps the file that `path` leads to under a name of its own, which stays
/// with it when the first name goes to another file. What is no plain file
/// cannot be replaced, and what is gone needs no name.
bool keepAside(const std::string& path) {
    constexpr int kMostKept = 1000;
    const auto file = withoutLinks(path);
    if (!file || !isPlainFile(*file)) return true;
    for (int number = 1; number <= kMostKept; ++number) {
        if (nameAside(*file, file->string() + ".unreadable-" + std::to_string(number))) return true;
    }
    return false;
}

}  // namespace

PropertyListResult SettingsFiles::read(const std::string& path) {
    PropertyListResult result = readDictionaryFile(path);
    const std::string file = ownName(path);
    std::erase(unreadable_, file);
    if (!result.error.empty()) unreadable_.push_back(file);
    return result;
}

bool SettingsFiles::write(const std::string& path, const Dictionary& entries) {
    const PropertyListData list = writePropertyList(Value(entries));
    if (!list.data || list.data->size() > kLargestFile) return false;
    const auto unreadable = std::ranges::find(unreadable_, ownName(path));
    if (unreadable != unreadable_.end()) {
        if (!keepAside(path)) return false;
        unreadable_.erase(unreadable);
    }
    return writeFileAtomically(path, *list.data);
}

}  // namespace QZCore
