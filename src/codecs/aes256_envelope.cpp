#include "QZCore/codecs/envelopes.h"
#include "platform/crypto.h"
#include "platform/secret.h"

namespace QZCore {
namespace {

// The form of stored envelopes.
constexpr std::uint8_t kFormat = 1;
constexpr std::size_t kSaltLength = 8;
constexpr std::size_t kEncryptionSaltAt = 2;
constexpr std::size_t kAuthenticationSaltAt = kEncryptionSaltAt + kSaltLength;
constexpr std::size_t kVectorAt = kAuthenticationSaltAt + kSaltLength;
constexpr std::size_t kHeaderLength = kVectorAt + kAesBlockLength;
constexpr std::size_t kCodeLength = sizeof(Sha256Digest);
constexpr std::int32_t kIterations = 10'000;

using Header = std::array<std::uint8_t, kHeaderLength>;
using Key = SecretBytes<32>;

bool makeHeader(Header& header) {
    header = {kFormat};
    return fillWithRandomBytes(std::span(header).subspan(kEncryptionSaltAt));
}

/// The key that the password makes with the salt at `saltAt` in the header.
bool makeKey(Key& key, StringView password, DataView header, std::size_t saltAt) {
    const SecretText secret(password);
    const DataView salt = header.subspan(saltAt, kSaltLength);
    return deriveKey({KeyHash::Sha1, secret.view(), salt, kIterations}, key.span());
}

AesCbc cipherOf(const Key& key, DataView header) {
    return {key.view(), header.subspan(kVectorAt, kAesBlockLength), CipherPadding::Pkcs7};
}

std::optional<Sha256Digest> codeOf(StringView password, DataView header,
                                   std::initializer_list<DataView> authenticated) {
    Key key;
    if (!makeKey(key, password, header, kAuthenticationSaltAt)) return std::nullopt;
    return hmacSha256(key.view(), authenticated);
}

/// Appends the encrypted data to `envelope`, which holds the place of the
/// header, and then the code over `authenticated` and the envelope.
bool complete(Data& envelope, const Header& header, DataView data, StringView password,
              DataView authenticated) {
    Key key;
    envelope.reserve(kHeaderLength + data.size() + 2 * kAesBlockLength + kCodeLength);
    if (!makeKey(key, password, header, kEncryptionSaltAt) ||
        !appendEncrypted(envelope, cipherOf(key, header), {data})) {
        return false;
    }
    const auto code = codeOf(password, header, {authenticated, envelope});
    if (!code) return false;
    envelope.insert(envelope.end(), code->begin(), code->end());
    return true;
}

}  // namespace

std::optional<Data> dataSealedAES256WithPassword(DataView data,
                                                 std::optional<StringView> password) {
    Header header;
    if (!password || !makeHeader(header)) return std::nullopt;
    Data envelope(header.begin(), header.end());
    if (!complete(envelope, header, data, *password, {})) return std::nullopt;
    return envelope;
}

std::optional<Data> dataEncryptedAES256WithPassword(DataView data,
                                                    std::optional<StringView> password) {
    Header header;
    if (!password || !makeHeader(header)) return std::nullopt;
    // Zeros where the header belongs, which is wanted although nothing can open
    // the result: callers compare its form.
    Data envelope(kHeaderLength);
    if (!complete(envelope, header, data, *password, header)) return std::nullopt;
    return envelope;
}

std::optional<Data> dataDecryptedAES256WithPassword(DataView envelope,
                                                    std::optional<StringView> password) {
    // Deriving keys takes long: what cannot be an envelope is told before.
    if (!password || envelope.size() <= kHeaderLength + kCodeLength || envelope[0] != kFormat)
        return std::nullopt;
    const DataView header = envelope.first(kHeaderLength);
    const DataView authenticated = envelope.first(envelope.size() - kCodeLength);
    const DataView encrypted = authenticated.subspan(kHeaderLength);
    if (encrypted.size() % kAesBlockLength != 0) return std::nullopt;

    // What is not authentic is not decrypted; no key for that is derived either.
    const auto code = codeOf(*password, header, {authenticated});
    if (!code || !areEqualInConstantTime(*code, envelope.last(kCodeLength))) return std::nullopt;

    Key key;
    Data data;
    if (!makeKey(key, *password, header, kEncryptionSaltAt) ||
        !appendDecrypted(data, cipherOf(key, header), encrypted)) {
        return std::nullopt;
    }
    return data;
}

}  // namespace QZCore
