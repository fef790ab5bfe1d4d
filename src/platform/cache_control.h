// The Cache-Control field of an answer.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace QZCore {

/// What the field asks of a private cache.
struct CacheControl {
    /// The answer must not be kept.
    bool noStore = false;
    /// The answer must not be used again without asking the server.
    bool noCache = false;
    /// The seconds for which the answer is fresh, at most 2^31.
    std::optional<std::int64_t> maxAge{};
};

/// Reads a field. What is not understood is ignored, except an unreadable
/// "max-age", which counts as 0; of two the shorter counts.
[[nodiscard]] CacheControl readCacheControl(std::string_view field);

/// A number of seconds as fields write it, clamped to 2^31; nothing when
/// `text` is not made of digits alone.
[[nodiscard]] std::optional<std::int64_t> readDeltaSeconds(std::string_view text);

}  // namespace QZCore
