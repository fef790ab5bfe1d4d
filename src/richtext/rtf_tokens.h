// RTF cut into tokens.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace QZCore {

/// A piece of a document.
struct RtfToken {
    enum class Kind : std::uint8_t {
        End,
        GroupStart,
        GroupEnd,
        Word,    // `text` is its name
        Symbol,  // `text` is one character, which followed a backslash
        Text,    // bytes as they are
        Byte,    // `number` is a byte that was written in hexadecimal
        Binary,  // bytes of binary data
    };

    Kind kind = Kind::End;
    std::string_view text{};
    /// Of a control word, if it has one.
    bool hasNumber = false;
    std::int32_t number = 0;
};

/// Cuts a document into its tokens from start to end. Any bytes are a
/// document; what is cut off ends where they end.
class RtfTokenizer {
public:
    explicit RtfTokenizer(std::string_view document) : rest_(document) {}

    [[nodiscard]] RtfToken next();

private:
    [[nodiscard]] RtfToken afterBackslash();
    [[nodiscard]] RtfToken hexadecimalByte();
    [[nodiscard]] RtfToken word();
    [[nodiscard]] RtfToken binary(std::int32_t length);
    void readNumber(RtfToken& token);
    std::string_view take(std::size_t length);

    std::string_view rest_;
};

}  // namespace QZCore
