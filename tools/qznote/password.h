// The password that a file is sealed with.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "QZCore/foundation/text.h"

namespace qznote {

/// A password, wiped from memory when it goes.
class Password {
public:
    /// Takes what is in `bytes`, and wipes them.
    explicit Password(std::string& bytes);
    ~Password();
    Password(Password&& other) noexcept = default;
    Password(const Password&) = delete;
    Password& operator=(const Password&) = delete;

    [[nodiscard]] QZCore::StringView text() const { return {units_.data(), units_.size()}; }

private:
    std::vector<char16_t> units_;  // whose block moves with it
};

/// The longest password that is read, in bytes.
inline constexpr std::size_t kLongestPassword = 4096;

/// The bytes up to the end of the first line of what the descriptor gives.
/// Nothing when it cannot be read, or the line is too long, empty or no UTF-8.
[[nodiscard]] std::optional<Password> readPassword(int descriptor);

/// Asks the terminal of the process, which does not show the answer. Nothing when
/// there is no terminal, or for an answer that `readPassword` would not take.
[[nodiscard]] std::optional<Password> askForPassword(std::string_view prompt);

}  // namespace qznote
