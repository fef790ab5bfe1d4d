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

bool makeKey(Key& key, const SecretText& password, DataView salt) {
    return deriveKey({KeyHash::Sha1, password.view(), salt, kIterations}, key.span());
}

/// The two keys that a password and a header make.
class Keys {
public:
    Keys(StringView password, DataView header) {
        const SecretText secret(password);
        areMade_ =
            makeKey(encryption_, secret, header.subspan(kEncryptionSaltAt, kSaltLength)) &&
            makeKey(authentication_, secret, header.subspan(kAuthenticationSaltAt, kSaltLength));
    }

    [[nodiscard]] bool areMade() const { return areMade_; }
    [[nodiscard]] DataView encryption() const { return encryption_.view(); }
    [[nodiscard]] DataView authentication() const { return authentication_.view(); }

private:
    Key encryption_;
    Key authentication_;
    bool areMade_ = false;
};

AesCbc cipherOf(const Keys& keys, DataView header) {
    return {keys.encryption(), header.subspan(kVectorAt, kAesBlockLength), CipherPadding::Pkcs7};
}

/// Appends the encrypted data to `envelope`, which holds the place of the
/// header, and then the code over `authenticated` and the envelope.
bool complete(Data& envelope, const Header& header, DataView data, StringView password,
              DataView authenticated) {
    const Keys keys(password, header);
    envelope.reserve(kHeaderLength + data.size() + 2 * kAesBlockLength + kCodeLength);
    if (!keys.areMade() || !appendEncrypted(envelope, cipherOf(keys, header), {data})) return false;
    const auto code = hmacSha256(keys.authentication(), {authenticated, envelope});
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

    // Nothing is decrypted that is not authentic.
    const Keys keys(*password, header);
    if (!keys.areMade()) return std::nullopt;
    const auto code = hmacSha256(keys.authentication(), {authenticated});
    if (!code || !areEqualInConstantTime(*code, envelope.last(kCodeLength))) return std::nullopt;

    Data data;
    if (!appendDecrypted(data, cipherOf(keys, header), encrypted)) return std::nullopt;
    return data;
}

}  // namespace QZCore
