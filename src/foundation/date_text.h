// The parts of dates in texts that programs exchange: years, and numbers of
// some digits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace QZCore {

/// `value` with zeros before it, if it has fewer digits than `fewest`.
[[nodiscard]] std::string digits(std::int64_t value, std::size_t fewest);

/// Four digits; years that have no four digits carry a sign.
[[nodiscard]] std::string yearText(std::int64_t year);

/// Reads the fields of a date one after the other.
class DateScanner {
public:
    /// The text must outlive the scanner.
    explicit DateScanner(std::string_view text) : text_(text) {}

    /// Whether `character` came next; then it is behind.
    [[nodiscard]] bool take(char character);

    /// A number of `fewest` to `most` digits.
    [[nodiscard]] std::optional<std::int64_t> number(std::size_t fewest, std::size_t most);

    /// `mark` and a number of two digits between `low` and `high`.
    [[nodiscard]] std::optional<int> field(char mark, int low, int high);

    /// A year as `yearText` writes it.
    [[nodiscard]] std::optional<std::int64_t> year();

    /// Whether all has been read.
    [[nodiscard]] bool atEnd() const { return text_.empty(); }

private:
    std::string_view text_;
};

}  // namespace QZCore
