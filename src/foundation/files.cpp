#include "QZCore/foundation/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>

#include "foundation/file_links.h"
#include "foundation/open_file.h"
#include "foundation/saving_name.h"

namespace QZCore {
namespace {

namespace fs = std::filesystem;

/// What the new file must look like to stand in for the old one.
struct Standing {
    bool replaces = false;
    struct ::stat old = {};
};

/// How `file` stands now; nothing when it is there and must not be replaced:
/// not a plain file, or protected from writing.
std::optional<Standing> standingOf(const fs::path& file) {
    Standing standing;
    if (::stat(file.c_str(), &standing.old) != 0) {
        return errno == ENOENT ? std::optional(standing) : std::nullopt;
    }
    if (!S_ISREG(standing.old.st_mode)) return std::nullopt;
    if (::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) return std::nullopt;
    standing.replaces = true;
    return standing;
}

/// Whether the file has the permissions now. A file system that knows only one
/// kind of permissions gives it to every file.
bool setPermissions(const OpenFile& file, mode_t permissions) {
    if (::fchmod(file.descriptor(), permissions) == 0) return true;
    struct ::stat given = {};
    return ::fstat(file.descriptor(), &given) == 0 && (given.st_mode & 07777) == permissions;
}

/// Gives the new file the permissions of the old one, and its group and owner,
/// each as far as the process may.
bool takeOver(const OpenFile& file, const Standing& standing) {
    constexpr auto kSame = static_cast<uid_t>(-1);
    if (!standing.replaces) return true;
    const bool sameGroup = ::fchown(file.descriptor(), kSame, standing.old.st_gid) == 0;
    const bool sameOwner = ::fchown(file.descriptor(), standing.old.st_uid, kSame) == 0;
    const mode_t kept = sameGroup && sameOwner ? 07777 : 0777;
    return setPermissions(file, standing.old.st_mode & kept);
}

bool flushFolder(const fs::path& folder) {
    const OpenFile opened(folder, O_RDONLY | O_DIRECTORY);
    return !opened.isOpen() || opened.flush();
}

}  // namespace

std::optional<Data> readFile(const std::string& path, std::size_t limit) {
    // Opening a pipe would wait for a writer, and a device may have no end.
    const OpenFile file(path, O_RDONLY | O_NONBLOCK);
    const auto size = file.sizeIfPlain();
    if (!size || *size > limit) return std::nullopt;
    Data bytes;
    std::array<std::uint8_t, 65536> buffer;
    while (const auto count = file.read(buffer)) {
        if (*count == 0) return bytes;
        if (*count > limit - bytes.size()) return std::nullopt;
        bytes.insert(bytes.end(), buffer.data(), buffer.data() + *count);
    }
    return std::nullopt;
}

bool writeFileAtomically(const std::string& path, DataView bytes) {
    const std::optional<fs::path> file = withoutLinks(path);
    if (!file) return false;
    const std::optional<Standing> standing = standingOf(*file);
    if (!standing) return false;
    removeStaleSavings(*file);

    // Until it has the old permissions, nobody else may look into the file.
    const mode_t mode = standing->replaces ? 0600 : 0666;
    const fs::path name = nextSavingName(*file);
    OpenFile saving(name, O_WRONLY | O_CREAT | O_EXCL, mode);
    if (!saving.isOpen()) return false;
    if (takeOver(saving, *standing) && saving.write(bytes) && saving.flush() && saving.close() &&
        std::rename(name.c_str(), file->c_str()) == 0) {
        return flushFolder(folderOf(*file));
    }
    ::unlink(name.c_str());
    return false;
}

}  // namespace QZCore
