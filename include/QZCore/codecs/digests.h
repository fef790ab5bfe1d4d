// Digests of data and strings, and keys derived from passwords.
//
// Strings are digested as UTF-8. Hexadecimal forms are in lower case; the
// URL-safe base64 is that of `urlSafeBase64`. All forms may be stored. An empty
// result stands for a failure that only the machine can cause: no memory, or a
// policy that forbids the digest. Every function may be called from any thread.
#pragma once

#include <cstdint>
#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

// ---- Of data ----------------------------------------------------------------

/// The 20 bytes of the SHA-1 of `data`. SHA-1 protects from accidents only:
/// different data with the same digest can be made.
[[nodiscard]] QZ_EXPORT Data SHA1(DataView data);

/// The SHA-1 of `data` in hexadecimal.
[[nodiscard]] QZ_EXPORT String SHA1AsHexString(DataView data);

/// The 32 bytes of the SHA-256 of `data`.
[[nodiscard]] QZ_EXPORT Data SHA256(DataView data);

/// The SHA-256 of `data` in hexadecimal.
[[nodiscard]] QZ_EXPORT String SHA256AsHexString(DataView data);

// ---- Of strings -------------------------------------------------------------

/// The SHA-1 of `text` in hexadecimal.
[[nodiscard]] QZ_EXPORT String sha1AsHex(StringView text);

/// The SHA-256 of `text` in hexadecimal.
[[nodiscard]] QZ_EXPORT String sha256AsHex(StringView text);

/// The SHA-256 of `text` in URL-safe base64.
[[nodiscard]] QZ_EXPORT String sha256AsURLSafeBase64(StringView text);

// ---- Keys from passwords ----------------------------------------------------

/// The 32 bytes that PBKDF2 with HMAC-SHA-256 makes of `password` and the UTF-8
/// form of `salt`, in hexadecimal. No string for less than one iteration.
/// Today's advice for passwords is 600,000 iterations or more.
[[nodiscard]] QZ_EXPORT std::optional<String> pbkdf2UsingSHA256AsHexWithSalt(
    StringView password, StringView salt, std::int32_t iterations);

/// The same in URL-safe base64.
[[nodiscard]] QZ_EXPORT std::optional<String> pbkdf2UsingSHA256AsURLSafeBase64WithSalt(
    StringView password, StringView salt, std::int32_t iterations);

}  // namespace QZCore
