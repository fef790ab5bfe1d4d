#include "codecs/home_folder.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

namespace QZCore {
namespace {

String readHomeFolder() {
    constexpr std::size_t kMostBytes = 1 << 20;
    for (std::vector<char> texts(1024); texts.size() <= kMostBytes;
         texts.resize(2 * texts.size())) {
        passwd entry{};
        passwd* found = nullptr;
        const int error = getpwuid_r(getuid(), &entry, texts.data(), texts.size(), &found);
        if (error == ERANGE) continue;
        if (error != 0 || found == nullptr || found->pw_dir == nullptr) return {};
        return fromUTF8(found->pw_dir);
    }
    return {};
}

}  // namespace

const String& homeFolderOfUser() {
    static const String& folder = *new String(readHomeFolder());
    return folder;
}

}  // namespace QZCore
