#include "codecs/zip_archive.h"

#include <algorithm>
#include <optional>

#include "QZCore/codecs/checksums.h"

namespace QZCore {
namespace {

// All numbers of an archive stand with their lowest byte first.
constexpr std::uint32_t kFileHeader = 0x04034B50;
constexpr std::uint32_t kDirectoryEntry = 0x02014B50;
constexpr std::uint32_t kDirectoryEnd = 0x06054B50;
constexpr std::size_t kFileHeaderLength = 30;
constexpr std::size_t kDirectoryEntryLength = 46;
constexpr std::size_t kDirectoryEndLength = 22;
constexpr std::size_t kLongestComment = 65535;
constexpr std::uint16_t kVersion = 10;
constexpr std::uint16_t kFirstDay = 1 << 5 | 1;  // 1 January 1980, as archives count

void append16(Data& to, std::uint32_t number) {
    to.push_back(static_cast<std::uint8_t>(number));
    to.push_back(static_cast<std::uint8_t>(number >> 8));
}

void append32(Data& to, std::uint32_t number) {
    append16(to, number & 0xFFFF);
    append16(to, number >> 16);
}

void append(Data& to, std::string_view bytes) { to.insert(to.end(), bytes.begin(), bytes.end()); }

/// What a file's header and its entry in the directory have in common.
void appendDescription(Data& to, std::string_view name, DataView contents) {
    const auto size = static_cast<std::uint32_t>(contents.size());
    append16(to, kVersion);
    append16(to, 0);  // flags
    append16(to, 0);  // stored, not compressed
    append16(to, 0);  // midnight
    append16(to, kFirstDay);
    append32(to, crc32(contents));
    append32(to, size);
    append32(to, size);
    append16(to, static_cast<std::uint32_t>(name.size()));
    append16(to, 0);  // no extra field
}

/// Numbers within bytes; 0 beyond their end.
class NumberView {
public:
    explicit NumberView(DataView bytes) : bytes_(bytes) {}

    [[nodiscard]] std::uint32_t at16(std::size_t at) const { return byte(at) | byte(at + 1) << 8; }
    [[nodiscard]] std::uint32_t at32(std::size_t at) const { return at16(at) | at16(at + 2) << 16; }
    [[nodiscard]] DataView part(std::size_t at, std::size_t length) const {
        at = std::min(at, bytes_.size());
        return bytes_.subspan(at, std::min(length, bytes_.size() - at));
    }

private:
    [[nodiscard]] std::uint32_t byte(std::size_t at) const {
        return at < bytes_.size() ? bytes_[at] : 0;
    }

    DataView bytes_;
};

/// Where the directory is told to be: before a comment at the end.
std::optional<std::size_t> directoryEndIn(DataView archive) {
    if (archive.size() < kDirectoryEndLength) return std::nullopt;
    const std::size_t last = archive.size() - kDirectoryEndLength;
    const std::size_t first = last - std::min(last, kLongestComment);
    for (std::size_t at = last + 1; at-- > first;) {
        if (NumberView(archive).at32(at) == kDirectoryEnd) return at;
    }
    return std::nullopt;
}

/// The contents of the file whose entry stands at `entry`; nothing when they
/// are not there as they were.
std::optional<DataView> contentsOf(DataView archive, std::size_t entry) {
    const NumberView numbers(archive);
    const bool isEncrypted = (numbers.at16(entry + 8) & 1) != 0;
    const bool isCompressed = numbers.at16(entry + 10) != 0;
    const std::size_t header = numbers.at32(entry + 42);
    if (isEncrypted || isCompressed || numbers.at32(header) != kFileHeader) return std::nullopt;
    const std::size_t start =
        header + kFileHeaderLength + numbers.at16(header + 26) + numbers.at16(header + 28);
    const std::size_t size = numbers.at32(entry + 20);
    const DataView contents = numbers.part(start, size);
    if (contents.size() != size || crc32(contents) != numbers.at32(entry + 16)) return std::nullopt;
    return contents;
}

}  // namespace

void ZipWriter::add(std::string_view name, DataView contents) {
    if (contents.size() > UINT32_MAX || archive_.size() > UINT32_MAX || files_ == UINT16_MAX) {
        return;
    }
    const auto offset = static_cast<std::uint32_t>(archive_.size());
    append32(archive_, kFileHeader);
    appendDescription(archive_, name, contents);
    append(archive_, name);
    append(archive_, textOf(contents));
    append32(directory_, kDirectoryEntry);
    append16(directory_, kVersion);
    appendDescription(directory_, name, contents);
    for (int field = 0; field < 3; ++field) append16(directory_, 0);  // comment, disk, kind
    append32(directory_, 0);                                          // outer attributes
    append32(directory_, offset);
    append(directory_, name);
    ++files_;
}

Data ZipWriter::finish() {
    const auto start = static_cast<std::uint32_t>(archive_.size());
    append(archive_, textOf(directory_));
    append32(archive_, kDirectoryEnd);
    append32(archive_, 0);  // the one disk
    append16(archive_, files_);
    append16(archive_, files_);
    append32(archive_, static_cast<std::uint32_t>(directory_.size()));
    append32(archive_, start);
    append16(archive_, 0);  // no comment
    return std::move(archive_);
}

std::map<std::string, DataView> filesInZip(DataView archive) {
    std::map<std::string, DataView> files;
    const auto end = directoryEndIn(archive);
    if (!end) return files;
    const NumberView numbers(archive);
    std::size_t left = archive.size();  // of what may be read again, were all files the same bytes
    std::size_t at = numbers.at32(*end + 16);
    while (numbers.at32(at) == kDirectoryEntry) {
        const std::size_t nameLength = numbers.at16(at + 28);
        const std::size_t size = numbers.at32(at + 20);
        if (size > left) break;
        left -= size;
        if (const auto contents = contentsOf(archive, at)) {
            files.emplace(textOf(numbers.part(at + kDirectoryEntryLength, nameLength)), *contents);
        }
        at += kDirectoryEntryLength + nameLength + numbers.at16(at + 30) + numbers.at16(at + 32);
    }
    return files;
}

}  // namespace QZCore
