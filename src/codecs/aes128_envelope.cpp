#include <algorithm>
#include <cstdint>

#include "QZCore/codecs/envelopes.h"
#include "platform/crypto.h"
#include "platform/secret.h"

namespace QZCore {
namespace {

// The form of stored envelopes.
constexpr std::size_t kVectorLength = kAesBlockLength;
constexpr std::size_t kLengthLength = 4;
constexpr std::size_t kZerosBeforeLength = kAesBlockLength - kLengthLength;

using Key = SecretBytes<16>;

/// The first bytes of the password's digest.
bool makeKey(Key& key, StringView password) {
    const SecretText secret(password);
    auto digest = sha1(secret.view());
    if (!digest) return false;
    std::ranges::copy(std::span(*digest).first(key.span().size()), key.span().begin());
    wipe(*digest);
    return true;
}

AesCbc cipherOf(const Key& key, DataView vector) {
    return {key.view(), vector, CipherPadding::None};
}

/// The last two blocks of the text: the data that fill no block, zeros, and the
/// length of all data.
using Ending = std::array<std::uint8_t, 2 * kAesBlockLength>;

Ending endingOf(DataView data) {
    Ending ending{};
    std::ranges::copy(data.last(data.size() % kAesBlockLength), ending.begin());
    for (std::size_t i = 0; i < kLengthLength; ++i)
        ending[ending.size() - 1 - i] = static_cast<std::uint8_t>(data.size() >> (8 * i));
    return ending;
}

/// The length of the data in a decrypted text of a block or more; nothing when
/// it ends in another way than such texts do.
std::optional<std::size_t> dataLength(DataView text) {
    const DataView ending = text.last(kAesBlockLength);
    for (const std::uint8_t byte : ending.first(kZerosBeforeLength))
        if (byte != 0) return std::nullopt;
    std::size_t length = 0;
    for (const std::uint8_t byte : ending.last(kLengthLength)) length = length << 8 | byte;
    if (length > text.size() - kAesBlockLength) return std::nullopt;
    return length;
}

}  // namespace

std::optional<Data> dataEncryptedAES128WithPassword(DataView data,
                                                    std::optional<StringView> password) {
    std::array<std::uint8_t, kVectorLength> vector;
    Key key;
    if (!password || data.size() > UINT32_MAX || !makeKey(key, *password) ||
        !fillWithRandomBytes(vector)) {
        return std::nullopt;
    }
    Data envelope(vector.begin(), vector.end());
    envelope.reserve(kVectorLength + data.size() + sizeof(Ending) + 2 * kAesBlockLength);
    Ending ending = endingOf(data);
    const DataView wholeBlocks = data.first(data.size() - data.size() % kAesBlockLength);
    const bool isDone = appendEncrypted(envelope, cipherOf(key, vector), {wholeBlocks, ending});
    wipe(ending);
    if (!isDone) return std::nullopt;
    return envelope;
}

std::optional<Data> dataDecryptedAES128WithPassword(DataView envelope,
                                                    std::optional<StringView> password) {
    Key key;
    if (!password || envelope.size() < kVectorLength + kAesBlockLength ||
        envelope.size() % kAesBlockLength != 0 || !makeKey(key, *password)) {
        return std::nullopt;
    }
    Data text;
    const AesCbc cipher = cipherOf(key, envelope.first(kVectorLength));
    if (!appendDecrypted(text, cipher, envelope.subspan(kVectorLength))) return std::nullopt;
    const auto length = dataLength(text);
    if (!length) {
        wipe(text);
        return std::nullopt;
    }
    text.resize(*length);
    return text;
}

}  // namespace QZCore
