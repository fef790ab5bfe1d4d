#include "foundation/open_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace QZCore {
namespace {

/// The result of `call`, which is repeated as long as a signal interrupts it.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

}  // namespace

OpenFile::OpenFile(const std::string& path, int flags, mode_t mode)
    : descriptor_(uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); })) {}

OpenFile::~OpenFile() {
    if (isOpen()) ::close(descriptor_);
}

std::optional<std::size_t> OpenFile::sizeIfPlain() const {
    struct ::stat standing = {};
    if (::fstat(descriptor_, &standing) != 0 || !S_ISREG(standing.st_mode)) return std::nullopt;
    return static_cast<std::size_t>(standing.st_size);
}

std::optional<std::size_t> OpenFile::read(std::span<std::uint8_t> buffer) const {
    const ssize_t count =
        uninterrupted([&] { return ::read(descriptor_, buffer.data(), buffer.size()); });
    if (count < 0) return std::nullopt;
    return static_cast<std::size_t>(count);
}

bool OpenFile::write(DataView bytes) const {
    while (!bytes.empty()) {
        const ssize_t count =
            uninterrupted([&] { return ::write(descriptor_, bytes.data(), bytes.size()); });
        if (count < 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

bool OpenFile::flush() const {
    if (uninterrupted([&] { return ::fsync(descriptor_); }) == 0) return true;
    return errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}

bool OpenFile::close() {
    // An interrupted close has closed the file; repeating it could close
    // somebody else's.
    return ::close(std::exchange(descriptor_, -1)) == 0 || errno == EINTR;
}

}  // namespace QZCore
