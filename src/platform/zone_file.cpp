#include "platform/zone_file.h"

#include <algorithm>
#include <functional>

namespace QZCore {
namespace {

constexpr std::size_t kTypeLength = 6;
// RFC 8536 allows offsets of a little more than a day.
constexpr std::int32_t kLargestOffset = 26 * 3600;

/// How many of each thing a block of the file holds.
struct Counts {
    std::size_t utcMarks = 0;
    std::size_t standardMarks = 0;
    std::size_t leapSeconds = 0;
    std::size_t changes = 0;
    std::size_t types = 0;
    std::size_t letters = 0;

    [[nodiscard]] std::size_t blockLength(std::size_t timeLength) const {
        return changes * timeLength + changes + types * kTypeLength + letters +
               leapSeconds * (timeLength + 4) + standardMarks + utcMarks;
    }
};

/// Reads a file from its start to its end. Reading beyond the end gives zeros
/// and is remembered.
class FileReader {
public:
    explicit FileReader(DataView file) : file_(file) {}

    [[nodiscard]] bool failed() const { return failed_; }
    [[nodiscard]] DataView rest() const { return file_.subspan(at_); }

    DataView bytes(std::size_t count) {
        if (count > file_.size() - at_) {
            failed_ = true;
            return {};
        }
        at_ += count;
        return file_.subspan(at_ - count, count);
    }

    /// A signed number of `length` bytes, the highest first.
    std::int64_t number(std::size_t length) {
        const DataView digits = bytes(length);
        std::uint64_t value = !digits.empty() && digits[0] >= 0x80 ? UINT64_MAX : 0;
        for (const std::uint8_t digit : digits) value = value << 8 | digit;
        return static_cast<std::int64_t>(value);
    }

    /// The version of the header that stands here, and its counts.
    std::optional<std::uint8_t> header(Counts& counts) {
        if (textOf(bytes(4)) != "TZif") return std::nullopt;
        const DataView version = bytes(16);
        for (std::size_t* count : {&counts.utcMarks, &counts.standardMarks, &counts.leapSeconds,
                                   &counts.changes, &counts.types, &counts.letters}) {
            *count = static_cast<std::uint32_t>(number(4));
        }
        return failed_ ? std::nullopt : std::optional(version[0]);
    }

private:
    DataView file_;
    std::size_t at_ = 0;
    bool failed_ = false;
};

std::string abbreviationAt(DataView letters, std::size_t index) {
    const std::string_view all = textOf(letters);
    return std::string(all.substr(index, all.find('\0', index) - index));
}

bool readBlock(FileReader& file, const Counts& counts, std::size_t timeLength, ZoneTable& table) {
    if (counts.blockLength(timeLength) > file.rest().size() || counts.types == 0) return false;
    for (std::size_t i = 0; i < counts.changes; ++i) {
        table.changes.push_back(file.number(timeLength));
    }
    const DataView types = file.bytes(counts.changes);
    table.typeOfChange.assign(types.begin(), types.end());
    const DataView typeRecords = file.bytes(counts.types * kTypeLength);
    const DataView letters = file.bytes(counts.letters);
    FileReader records(typeRecords);
    for (std::size_t i = 0; i < counts.types; ++i) {
        const std::int64_t offset = records.number(4);
        const bool isDaylightSaving = records.number(1) != 0;
        const auto name = static_cast<std::uint8_t>(records.number(1));
        if (offset < -kLargestOffset || offset > kLargestOffset || name >= letters.size()) {
            return false;
        }
        table.types.push_back(
            {static_cast<std::int32_t>(offset), isDaylightSaving, abbreviationAt(letters, name)});
    }
    file.bytes(counts.leapSeconds * (timeLength + 4) + counts.standardMarks + counts.utcMarks);
    const auto isKnown = [&](std::uint8_t type) { return type < table.types.size(); };
    const auto isNear = [](std::int64_t change) {
        return change >= -kFarthestChange && change <= kFarthestChange;
    };
    return std::ranges::all_of(table.typeOfChange, isKnown) &&
           std::ranges::all_of(table.changes, isNear) &&
           std::ranges::adjacent_find(table.changes, std::greater_equal()) == table.changes.end();
}

/// The rule between two line feeds at the end of the file.
std::optional<ZoneRule> readFooter(DataView rest) {
    std::string_view footer = textOf(rest);
    if (footer.size() < 2 || footer[0] != '\n') return std::nullopt;
    footer.remove_prefix(1);
    return ZoneRule::fromString(footer.substr(0, footer.find('\n')));
}

}  // namespace

std::optional<ZoneTable> readZoneFile(DataView bytes) {
    FileReader file(bytes);
    Counts counts;
    const auto version = file.header(counts);
    if (!version) return std::nullopt;
    ZoneTable table;
    if (*version < '2') {
        return readBlock(file, counts, 4, table) ? std::optional(std::move(table)) : std::nullopt;
    }
    // The first block is for readers of 32-bit times.
    file.bytes(counts.blockLength(4));
    if (!file.header(counts) || !readBlock(file, counts, 8, table)) return std::nullopt;
    table.rule = readFooter(file.rest());
    return table;
}

}  // namespace QZCore
