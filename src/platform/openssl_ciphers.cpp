#include <openssl/evp.h>

#include <algorithm>
#include <memory>

#include "platform/crypto.h"
#include "platform/openssl_errors.h"

namespace QZCore {
namespace {

struct ContextCloser {
    void operator()(EVP_CIPHER_CTX* context) const { EVP_CIPHER_CTX_free(context); }
};
using Context = std::unique_ptr<EVP_CIPHER_CTX, ContextCloser>;

enum class Direction : int { Decrypt = 0, Encrypt = 1 };

const EVP_CIPHER* algorithmOf(const AesCbc& cipher) {
    static const EVP_CIPHER* const kAes128 = EVP_CIPHER_fetch(nullptr, "AES-128-CBC", nullptr);
    static const EVP_CIPHER* const kAes256 = EVP_CIPHER_fetch(nullptr, "AES-256-CBC", nullptr);
    if (cipher.vector.size() != kAesBlockLength) return nullptr;
    return cipher.key.size() == 16 ? kAes128 : cipher.key.size() == 32 ? kAes256 : nullptr;
}

/// One text on its way through a cipher.
class Passage {
public:
    Passage(const AesCbc& cipher, Direction direction) : context_(EVP_CIPHER_CTX_new()) {
        const EVP_CIPHER* algorithm = algorithmOf(cipher);
        works_ =
            context_ != nullptr && algorithm != nullptr &&
            EVP_CipherInit_ex2(context_.get(), algorithm, cipher.key.data(), cipher.vector.data(),
                               static_cast<int>(direction), nullptr) == 1 &&
            EVP_CIPHER_CTX_set_padding(context_.get(),
                                       cipher.padding == CipherPadding::Pkcs7 ? 1 : 0) == 1;
    }

    /// Appends what comes out while `text` goes in. The output grows by pieces
    /// that stay in the processor's caches until they are filled.
    void put(Data& out, DataView text) {
        constexpr std::size_t kPiece = 1 << 15;
        while (works_ && !text.empty()) {
            const DataView piece = text.first(std::min(kPiece, text.size()));
            const std::size_t before = out.size();
            int written = 0;
            out.resize(before + piece.size() + kAesBlockLength);
            works_ = EVP_CipherUpdate(context_.get(), &out[before], &written, piece.data(),
                                      static_cast<int>(piece.size())) == 1;
            out.resize(before + static_cast<std::size_t>(written));
            text = text.subspan(piece.size());
        }
    }

    /// Appends what is left; returns whether everything has gone well.
    [[nodiscard]] bool end(Data& out) {
        const std::size_t before = out.size();
        int written = 0;
        out.resize(before + kAesBlockLength);
        works_ = works_ && EVP_CipherFinal_ex(context_.get(), &out[before], &written) == 1;
        out.resize(before + (works_ ? static_cast<std::size_t>(written) : 0));
        return works_;
    }

private:
    Context context_;
    bool works_ = false;
};

bool append(Data& out, Passage& passage, std::initializer_list<DataView> parts) {
    const std::size_t before = out.size();
    std::size_t length = before + 2 * kAesBlockLength;
    for (const DataView part : parts) length += part.size();
    out.reserve(length);  // so that no growth leaves a copy of a text behind
    for (const DataView part : parts) passage.put(out, part);
    if (passage.end(out)) return true;
    wipe(std::span(out).subspan(before));
    out.resize(before);
    return false;
}

}  // namespace

bool appendEncrypted(Data& out, const AesCbc& cipher, std::initializer_list<DataView> parts) {
    const QuietErrors quiet;
    Passage passage(cipher, Direction::Encrypt);
    return append(out, passage, parts);
}

bool appendDecrypted(Data& out, const AesCbc& cipher, DataView text) {
    const QuietErrors quiet;
    Passage passage(cipher, Direction::Decrypt);
    return append(out, passage, {text});
}

}  // namespace QZCore
