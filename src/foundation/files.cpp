#include "QZCore/foundation/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <utility>

namespace QZCore {
namespace {

namespace fs = std::filesystem;

/// An open file that closes itself.
class OpenFile {
public:
    OpenFile(const std::string& path, int flags, mode_t mode = 0) {
        do {
            descriptor_ = ::open(path.c_str(), flags | O_CLOEXEC, mode);
        } while (descriptor_ < 0 && errno == EINTR);
    }
    ~OpenFile() {
        if (isOpen()) ::close(descriptor_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] int descriptor() const { return descriptor_; }

    /// Closes the file and returns whether all that was written arrived. An
    /// interrupted close has released the descriptor.
    bool close() { return ::close(std::exchange(descriptor_, -1)) == 0 || errno == EINTR; }

private:
    int descriptor_ = -1;
};

/// The next bytes of a file into `buffer`: how many, 0 at the end, below 0
/// when it cannot be read.
ssize_t readSome(int descriptor, std::span<std::uint8_t> buffer) {
    ssize_t count = 0;
    do {
        count = ::read(descriptor, buffer.data(), buffer.size());
    } while (count < 0 && errno == EINTR);
    return count;
}

bool writeAll(int descriptor, DataView bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

/// Flushes a file or a folder to the disk. A file system that cannot do that
/// has done what it can.
bool flush(int descriptor) {
    while (::fsync(descriptor) != 0) {
        if (errno == EINTR) continue;
        return errno == EINVAL || errno == ENOSYS || errno == ENOTSUP || errno == EOPNOTSUPP;
    }
    return true;
}

bool flushFolder(const fs::path& folder) {
    const OpenFile opened(folder, O_RDONLY | O_DIRECTORY);
    return !opened.isOpen() || flush(opened.descriptor());
}

/// The file that `path` names in the end, when it is a symbolic link; it need
/// not exist. Nothing when the links lead in a circle.
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

// ---- The new file beside the old one ----
//
// Its name is ".NAME.PROCESS-NUMBER.saving". A process that is stopped in the
// middle of a save leaves it behind; a later save takes it away.

constexpr std::string_view kSuffix = ".saving";

std::string prefixFor(const fs::path& file) {
    constexpr std::size_t kKept = 180;  // leaves room in a name of 255 bytes
    return "." + file.filename().string().substr(0, kKept) + ".";
}

fs::path nextNewName(const fs::path& file) {
    static std::atomic<std::uint64_t> number = 0;
    return file.parent_path() / (prefixFor(file) + std::to_string(::getpid()) + "-" +
                                 std::to_string(number++) + std::string(kSuffix));
}

bool isNewName(std::string_view name, std::string_view prefix) {
    if (name.size() <= prefix.size() + kSuffix.size()) return false;
    if (!name.starts_with(prefix) || !name.ends_with(kSuffix)) return false;
    name.remove_prefix(prefix.size());
    name.remove_suffix(kSuffix.size());
    return name.find_first_not_of("0123456789-") == std::string_view::npos;
}

/// Removes what stopped saves of `file` have left behind: new files that have
/// not been touched for an hour, so that nobody can still be writing them.
void removeStaleNewFiles(const fs::path& file) {
    const std::string prefix = prefixFor(file);
    const auto hourAgo = fs::file_time_type::clock::now() - std::chrono::hours(1);
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    std::error_code error;
    for (fs::directory_iterator at(folder, error); !error && at != fs::directory_iterator();
         at.increment(error)) {
        if (!isNewName(at->path().filename().string(), prefix)) continue;
        std::error_code ignored;
        const auto touched = at->last_write_time(ignored);
        if (!ignored && touched < hourAgo) fs::remove(at->path(), ignored);
    }
}

/// What the new file must look like to stand in for the old one.
struct Standing {
    bool replaces = false;
    struct ::stat old = {};
};

/// How `file` stands now; nothing when it is there and cannot be replaced: not
/// a plain file, or protected from writing.
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

/// Gives the new file the owner, as far as the process may, and the
/// permissions of the old one.
bool takeOver(int descriptor, const Standing& standing) {
    if (!standing.replaces) return true;
    const bool sameOwner = ::fchown(descriptor, standing.old.st_uid, standing.old.st_gid) == 0;
    const mode_t kept = sameOwner ? 07777 : 0777;
    return ::fchmod(descriptor, standing.old.st_mode & kept) == 0;
}

/// Writes and flushes the new file `name`, which must not exist.
bool writeNewFile(const fs::path& name, const Standing& standing, DataView bytes) {
    // Until it has the old permissions, nobody else may look into the file.
    const mode_t mode = standing.replaces ? 0600 : 0666;
    OpenFile file(name, O_WRONLY | O_CREAT | O_EXCL, mode);
    if (!file.isOpen()) return false;
    return takeOver(file.descriptor(), standing) && writeAll(file.descriptor(), bytes) &&
           flush(file.descriptor()) && file.close();
}

}  // namespace

std::optional<Data> readFile(const std::string& path, std::size_t limit) {
    const OpenFile file(path, O_RDONLY);
    if (!file.isOpen()) return std::nullopt;
    Data bytes;
    std::array<std::uint8_t, 65536> buffer;
    while (true) {
        const ssize_t count = readSome(file.descriptor(), buffer);
        if (count < 0) return std::nullopt;
        if (count == 0) return bytes;
        if (static_cast<std::size_t>(count) > limit - bytes.size()) return std::nullopt;
        bytes.insert(bytes.end(), buffer.begin(), buffer.begin() + count);
    }
}

bool writeFileAtomically(const std::string& path, DataView bytes) {
    const std::optional<fs::path> file = withoutLinks(path);
    if (!file) return false;
    const std::optional<Standing> standing = standingOf(*file);
    if (!standing) return false;
    removeStaleNewFiles(*file);
    const fs::path name = nextNewName(*file);
    if (writeNewFile(name, *standing, bytes) && ::rename(name.c_str(), file->c_str()) == 0) {
        return flushFolder(file->has_parent_path() ? file->parent_path() : fs::path("."));
    }
    ::unlink(name.c_str());
    return false;
}

}  // namespace QZCore
