// Keys and passwords, which are wiped from memory when they are done with.
#pragma once

#include <array>
#include <string>

#include "platform/crypto.h"

namespace QZCore {

/// A number of bytes that are wiped when they go.
template <std::size_t kSize>
class SecretBytes {
public:
    SecretBytes() = default;
    ~SecretBytes() { wipe(bytes_); }
    SecretBytes(const SecretBytes&) = delete;
    SecretBytes& operator=(const SecretBytes&) = delete;

    [[nodiscard]] DataView view() const { return bytes_; }
    [[nodiscard]] std::span<std::uint8_t> span() { return bytes_; }

private:
    std::array<std::uint8_t, kSize> bytes_{};
};

/// The UTF-8 form of a text, wiped when it goes.
class SecretText {
public:
    explicit SecretText(StringView text) : bytes_(toUTF8(text)) {}
    ~SecretText() { wipe({reinterpret_cast<std::uint8_t*>(bytes_.data()), bytes_.size()}); }
    SecretText(const SecretText&) = delete;
    SecretText& operator=(const SecretText&) = delete;

    [[nodiscard]] DataView view() const { return bytesOf(bytes_); }

private:
    std::string bytes_;
};

}  // namespace QZCore
