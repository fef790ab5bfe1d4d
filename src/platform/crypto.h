// What OpenSSL's libcrypto does for the library: digests, authentication codes,
// keys from passwords, AES and random bytes.
//
// Nothing, or false, stands for a failure of the library: no memory, or an
// algorithm that the machine's policy forbids. Its queue of errors is left as it
// was. Every function may be called from any thread.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>

#include "QZCore/foundation/data.h"

namespace QZCore {

using Sha1Digest = std::array<std::uint8_t, 20>;
using Sha256Digest = std::array<std::uint8_t, 32>;

[[nodiscard]] std::optional<Sha1Digest> sha1(DataView data);
[[nodiscard]] std::optional<Sha256Digest> sha256(DataView data);

/// HMAC-SHA-256 over the parts, one after the other.
[[nodiscard]] std::optional<Sha256Digest> hmacSha256(DataView key,
                                                     std::initializer_list<DataView> parts);

/// Whether both are the same bytes; how long the answer takes says nothing
/// about where they differ.
[[nodiscard]] bool areEqualInConstantTime(DataView a, DataView b);

/// The digests that PBKDF2 is used with.
enum class KeyHash { Sha1, Sha256 };

/// What a key is derived from.
struct KeySource {
    KeyHash hash;
    DataView password;
    DataView salt;
    std::int32_t iterations;
};

/// Fills `key` by PBKDF2. False as well for less than one iteration.
[[nodiscard]] bool deriveKey(const KeySource& source, std::span<std::uint8_t> key);

/// Fills `bytes` from the secure random source.
[[nodiscard]] bool fillWithRandomBytes(std::span<std::uint8_t> bytes);

/// How AES brings a text to a multiple of its block.
enum class CipherPadding { None, Pkcs7 };

/// AES in CBC mode: AES-128 for a key of 16 bytes, AES-256 for one of 32.
struct AesCbc {
    DataView key;
    DataView vector;  // 16 bytes
    CipherPadding padding;
};

/// The length of AES's blocks and of initialisation vectors.
inline constexpr std::size_t kAesBlockLength = 16;

/// Appends the encrypted parts, taken as one text. On failure `out` is cut back.
[[nodiscard]] bool appendEncrypted(Data& out, const AesCbc& cipher,
                                   std::initializer_list<DataView> parts);

/// Appends the decrypted `text`. On failure, which a wrong padding and a length
/// between blocks are, `out` is cut back, with what was added wiped.
[[nodiscard]] bool appendDecrypted(Data& out, const AesCbc& cipher, DataView text);

/// Overwrites `bytes` so that no compiler leaves it out.
void wipe(std::span<std::uint8_t> bytes);

}  // namespace QZCore
