// The hash functions of OpenSSL, looked up once.
#pragma once

#include <openssl/evp.h>

namespace QZCore {

/// Null when the machine's policy forbids SHA-1.
[[nodiscard]] const EVP_MD* opensslSha1();

/// Null when it is missing.
[[nodiscard]] const EVP_MD* opensslSha256();

}  // namespace QZCore
