#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "QZCore/foundation/files.h"
#include "QZCore/foundation/log.h"
#include "QZCore/foundation/property_list.h"
#include "foundation/preferences_state.h"

namespace QZCore {
namespace {

bool isMissing(const std::string& path) {
    struct ::stat standing = {};
    return ::stat(path.c_str(), &standing) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

/// The dictionary that a file holds. A file that does not exist holds an empty
/// one; an unreadable one gives an absent value and the reason.
PropertyListResult readDictionaryFile(const std::string& path) {
    const auto bytes = readFile(path);
    if (!bytes) {
        if (isMissing(path)) return {Value(Dictionary()), {}};
        return {Value(), u"the file cannot be read"};
    }
    PropertyListResult result = readPropertyList(*bytes);
    if (!result.error.empty() || result.value.dictionary() != nullptr) return result;
    return {Value(), u"the list is no dictionary"};
}

/// Gives the file at `path` a second, new name, under which it stays when the
/// first name goes to another file. A file that is gone needs none.
bool keepAside(const std::string& path) {
    constexpr int kMostKept = 1000;
    for (int number = 1; number <= kMostKept; ++number) {
        const std::string aside = path + ".unreadable-" + std::to_string(number);
        if (::linkat(AT_FDCWD, path.c_str(), AT_FDCWD, aside.c_str(), AT_SYMLINK_FOLLOW) == 0) {
            return true;
        }
        if (errno == ENOENT) return true;
        if (errno != EEXIST) return false;
    }
    return false;
}

}  // namespace

bool Preferences::open(const std::string& path) {
    const PropertyListResult file = readDictionaryFile(path);
    const Dictionary* stored = file.value.dictionary();
    {
        const std::lock_guard saving(state_->saving);
        const std::lock_guard lock(state_->mutex);
        state_->path = path;
        state_->fileIsUnreadable = stored == nullptr;
        if (stored != nullptr) {
            for (const auto& [key, value] : *stored) state_->entries.setObject(value, key);
        }
    }
    if (stored != nullptr) return true;
    logLine(u"cannot read preferences from " + fromUTF8(path) + u": " + file.error);
    return false;
}

bool Preferences::save() {
    const std::lock_guard saving(state_->saving);
    if (state_->path.empty()) return false;
    const PropertyListData list = writePropertyList(Value(snapshot()));
    if (!list.data) return false;
    if (state_->fileIsUnreadable && !keepAside(state_->path)) return false;
    state_->fileIsUnreadable = false;
    return writeFileAtomically(state_->path, *list.data);
}

}  // namespace QZCore
