// Bytes of an RTF document as text.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// The code page that \fcharset names; nothing for the document's own.
[[nodiscard]] std::optional<std::int32_t> codePageOfCharset(std::int32_t charset);

/// The charset of fonts whose bytes name glyphs.
inline constexpr std::int32_t kSymbolCharset = 2;
/// A code page of our own for them: byte b is U+F000 + b, the bullet apart.
inline constexpr std::int32_t kSymbolCodePage = 42;
inline constexpr std::int32_t kWesternCodePage = 1252;
inline constexpr std::int32_t kOldRomanCodePage = 10000;

/// Decodes bytes in any code page.
class RtfCodePages {
public:
    /// Appends `bytes`. Bytes that mean nothing become U+FFFD, and a code page
    /// that is not known is read as the western one.
    void decode(std::string_view bytes, std::int32_t codePage, String& to);

private:
    using Table = std::array<char16_t, 256>;

    [[nodiscard]] const Table& tableOf(std::int32_t codePage);

    std::map<std::int32_t, std::unique_ptr<Table>> tables_;  // of single bytes
};

}  // namespace QZCore
