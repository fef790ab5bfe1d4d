#include "QZCore/codecs/digests.h"

#include "foundation/base64.h"
#include "foundation/hexadecimal.h"
#include "platform/crypto.h"
#include "platform/secret.h"

namespace QZCore {
namespace {

template <class Digest>
Data dataOf(const std::optional<Digest>& digest) {
    return digest ? Data(digest->begin(), digest->end()) : Data{};
}

template <class Digest>
String hexOf(const std::optional<Digest>& digest) {
    return digest ? lowerHex(*digest) : String{};
}

/// The key that PBKDF2 makes, in the form that `write` gives it.
std::optional<String> derived(StringView password, StringView salt, std::int32_t iterations,
                              String (*write)(DataView key)) {
    const SecretText secret(password);
    const std::string saltBytes = toUTF8(salt);
    SecretBytes<32> key;
    if (!deriveKey({KeyHash::Sha256, secret.view(), bytesOf(saltBytes), iterations}, key.span()))
        return std::nullopt;
    return write(key.view());
}

}  // namespace

Data SHA1(DataView data) { return dataOf(sha1(data)); }
Data SHA256(DataView data) { return dataOf(sha256(data)); }

String SHA1AsHexString(DataView data) { return hexOf(sha1(data)); }
String SHA256AsHexString(DataView data) { return hexOf(sha256(data)); }

String sha1AsHex(StringView text) { return SHA1AsHexString(bytesOf(toUTF8(text))); }
String sha256AsHex(StringView text) { return SHA256AsHexString(bytesOf(toUTF8(text))); }

String sha256AsURLSafeBase64(StringView text) {
    const auto digest = sha256(bytesOf(toUTF8(text)));
    return digest ? urlSafeBase64Of(*digest) : String{};
}

std::optional<String> pbkdf2UsingSHA256AsHexWithSalt(StringView password, StringView salt,
                                                     std::int32_t iterations) {
    return derived(password, salt, iterations, lowerHex);
}

std::optional<String> pbkdf2UsingSHA256AsURLSafeBase64WithSalt(StringView password, StringView salt,
                                                               std::int32_t iterations) {
    return derived(password, salt, iterations, urlSafeBase64Of);
}

}  // namespace QZCore
