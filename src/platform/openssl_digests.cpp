#include <openssl/crypto.h>
#include <openssl/rand.h>

#include <climits>

#include "platform/crypto.h"
#include "platform/openssl_errors.h"
#include "platform/openssl_hashes.h"

namespace QZCore {
namespace {

const EVP_MD* fetched(const char* name) {
    const QuietErrors quiet;
    return EVP_MD_fetch(nullptr, name, nullptr);
}

template <class Digest>
std::optional<Digest> digest(const EVP_MD* hash, DataView data) {
    const QuietErrors quiet;
    Digest bytes;
    if (hash == nullptr ||
        EVP_Digest(data.data(), data.size(), bytes.data(), nullptr, hash, nullptr) != 1) {
        return std::nullopt;
    }
    return bytes;
}

bool fitsInInt(std::size_t length) { return length <= INT_MAX; }

}  // namespace

const EVP_MD* opensslSha1() {
    static const EVP_MD* const kHash = fetched("SHA1");
    return kHash;
}

const EVP_MD* opensslSha256() {
    static const EVP_MD* const kHash = fetched("SHA256");
    return kHash;
}

std::optional<Sha1Digest> sha1(DataView data) { return digest<Sha1Digest>(opensslSha1(), data); }

std::optional<Sha256Digest> sha256(DataView data) {
    return digest<Sha256Digest>(opensslSha256(), data);
}

bool deriveKey(const KeySource& source, std::span<std::uint8_t> key) {
    const QuietErrors quiet;
    const EVP_MD* hash = source.hash == KeyHash::Sha1 ? opensslSha1() : opensslSha256();
    if (hash == nullptr || source.iterations < 1 || !fitsInInt(source.password.size()) ||
        !fitsInInt(source.salt.size()) || !fitsInInt(key.size())) {
        return false;
    }
    const std::string_view password = textOf(source.password);
    return PKCS5_PBKDF2_HMAC(password.data(), static_cast<int>(password.size()), source.salt.data(),
                             static_cast<int>(source.salt.size()), source.iterations, hash,
                             static_cast<int>(key.size()), key.data()) == 1;
}

bool fillWithRandomBytes(std::span<std::uint8_t> bytes) {
    const QuietErrors quiet;
    return fitsInInt(bytes.size()) && RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) == 1;
}

bool areEqualInConstantTime(DataView a, DataView b) {
    return a.size() == b.size() && CRYPTO_memcmp(a.data(), b.data(), a.size()) == 0;
}

void wipe(std::span<std::uint8_t> bytes) { OPENSSL_cleanse(bytes.data(), bytes.size()); }

}  // namespace QZCore
