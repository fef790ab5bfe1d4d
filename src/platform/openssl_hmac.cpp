#include <openssl/core_names.h>
#include <openssl/evp.h>
#include <openssl/params.h>

#include <memory>

#include "platform/crypto.h"
#include "platform/openssl_errors.h"

namespace QZCore {
namespace {

struct ContextCloser {
    void operator()(EVP_MAC_CTX* context) const { EVP_MAC_CTX_free(context); }
};
using Context = std::unique_ptr<EVP_MAC_CTX, ContextCloser>;

EVP_MAC* hmac() {
    static EVP_MAC* const kMac = EVP_MAC_fetch(nullptr, OSSL_MAC_NAME_HMAC, nullptr);
    return kMac;
}

bool begin(EVP_MAC_CTX* context, DataView key) {
    char hash[] = "SHA256";
    const OSSL_PARAM parameters[] = {
        OSSL_PARAM_construct_utf8_string(OSSL_MAC_PARAM_DIGEST, hash, 0),
        OSSL_PARAM_construct_end(),
    };
    return EVP_MAC_init(context, key.data(), key.size(), parameters) == 1;
}

}  // namespace

std::optional<Sha256Digest> hmacSha256(DataView key, std::initializer_list<DataView> parts) {
    const QuietErrors quiet;
    if (hmac() == nullptr) return std::nullopt;
    const Context context(EVP_MAC_CTX_new(hmac()));
    if (context == nullptr || !begin(context.get(), key)) return std::nullopt;
    for (const DataView part : parts) {
        if (EVP_MAC_update(context.get(), part.data(), part.size()) != 1) return std::nullopt;
    }
    Sha256Digest code;
    std::size_t length = 0;
    if (EVP_MAC_final(context.get(), code.data(), &length, code.size()) != 1) return std::nullopt;
    return code;
}

}  // namespace QZCore
