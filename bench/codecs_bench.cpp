// Checksums, texts of bytes, digests, envelopes and bzip2, beside zlib, OpenSSL,
// Qt and libbz2 itself. All on a megabyte, unless the case says otherwise.
#include <benchmark/benchmark.h>
#include <bzlib.h>
#include <openssl/evp.h>
#include <zlib.h>

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>
#include <random>

#include "QZCore/codecs.h"
#include "QZCore/color.h"
#include "foundation/base64.h"

namespace {

using QZCore::Data;
using QZCore::DataView;

constexpr std::size_t kLength = 1 << 20;

const Data& bytes() {
    static const Data& made = *[] {
        std::mt19937 random(1);
        auto* data = new Data(kLength);
        for (std::uint8_t& byte : *data) byte = static_cast<std::uint8_t>(random());
        return data;
    }();
    return made;
}

QByteArray qBytes() {
    return {reinterpret_cast<const char*>(bytes().data()), static_cast<qsizetype>(kLength)};
}

/// Registers a case that takes `length` bytes at a time.
template <class Work>
void measure(const char* name, std::size_t length, Work work) {
    benchmark::RegisterBenchmark(name, [length, work](benchmark::State& state) {
        for (auto _ : state) benchmark::DoNotOptimize(work());
        state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(length));
    });
}

void registerChecksums() {
    measure("update_crc/QZCore", kLength, [] {
        return QZCore::update_crc(0, bytes().data(), static_cast<std::int32_t>(kLength));
    });
    measure("update_crc/zlib", kLength, [] { return ::crc32(0, bytes().data(), kLength); });
    measure("update_crc_40_bytes/QZCore", 40,
            [] { return QZCore::update_crc(0, bytes().data(), 40); });
    measure("update_crc_40_bytes/zlib", 40, [] { return ::crc32(0, bytes().data(), 40); });
    measure("jenkinsHash/QZCore", kLength, [] { return QZCore::jenkinsHash(bytes()); });
}

void registerTexts() {
    measure("base32String/QZCore", kLength, [] { return QZCore::base32String(bytes()); });
    measure("dataWithBase32String/QZCore", kLength,
            [text = QZCore::base32String(bytes())] { return QZCore::dataWithBase32String(text); });

    measure("base64/QZCore", kLength, [] {
        std::string text;
        QZCore::appendBase64(text, bytes());
        return text;
    });
    measure("base64/OpenSSL", kLength, [] {
        std::string text(kLength / 3 * 4 + 8, '\0');
        EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()), bytes().data(),
                        static_cast<int>(kLength));
        return text;
    });
    measure("base64/Qt", kLength, [data = qBytes()] { return data.toBase64(); });
    measure("urlSafeBase64/QZCore", kLength, [] { return QZCore::urlSafeBase64(bytes()); });
    measure("urlSafeBase64/Qt", kLength, [data = qBytes()] {
        return QString::fromLatin1(
            data.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
    });
    std::string text;
    QZCore::appendBase64(text, bytes());
    measure("base64Decoded/QZCore", kLength, [text] { return QZCore::base64Decoded(text); });
    measure("base64Decoded/Qt", kLength,
            [encoded = qBytes().toBase64()] { return QByteArray::fromBase64(encoded); });
}

void registerDigests() {
    measure("sha256/QZCore", kLength, [] { return QZCore::SHA256(bytes()); });
    measure("sha256/OpenSSL", kLength, [] {
        std::array<unsigned char, 32> digest;
        EVP_Digest(bytes().data(), kLength, digest.data(), nullptr, EVP_sha256(), nullptr);
        return digest;
    });
    measure("sha256/Qt", kLength, [data = qBytes()] {
        return QCryptographicHash::hash(data, QCryptographicHash::Sha256);
    });
    measure("sha256AsHex_20_units/QZCore", 20,
            [] { return QZCore::sha256AsHex(u"a name of some length"); });
    measure("sha256AsHex_20_units/Qt", 20, [text = QString("a name of some length")] {
        return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex();
    });
}

/// AES-256 over the megabyte by OpenSSL alone.
Data enciphered(const EVP_CIPHER* cipher) {
    constexpr std::array<unsigned char, 32> kKey{};
    Data out(kLength + 16);
    int length = 0;
    EVP_CIPHER_CTX* context = EVP_CIPHER_CTX_new();
    EVP_EncryptInit_ex(context, cipher, nullptr, kKey.data(), kKey.data());
    EVP_EncryptUpdate(context, out.data(), &length, bytes().data(), static_cast<int>(kLength));
    EVP_EncryptFinal_ex(context, &out[static_cast<std::size_t>(length)], &length);
    EVP_CIPHER_CTX_free(context);
    return out;
}

void registerEnvelopes() {
    measure("dataEncryptedAES128/QZCore", kLength,
            [] { return QZCore::dataEncryptedAES128WithPassword(bytes(), u"a"); });
    measure("dataEncryptedAES128/OpenSSL", kLength, [] { return enciphered(EVP_aes_128_cbc()); });
    measure("dataDecryptedAES128/QZCore", kLength,
            [envelope = *QZCore::dataEncryptedAES128WithPassword(bytes(), u"a")] {
                return QZCore::dataDecryptedAES128WithPassword(envelope, u"a");
            });
    measure("dataSealedAES256/QZCore", kLength,
            [] { return QZCore::dataSealedAES256WithPassword(bytes(), u"a"); });
    measure("dataDecryptedAES256/QZCore", kLength,
            [envelope = *QZCore::dataSealedAES256WithPassword(bytes(), u"a")] {
                return QZCore::dataDecryptedAES256WithPassword(envelope, u"a");
            });
}

void registerBzip2() {
    measure("compressBZip2/QZCore", kLength, [] { return QZCore::compressBZip2(bytes()); });
    measure("dataWithBZip2Data/QZCore", kLength, [compressed = QZCore::compressBZip2(bytes())] {
        return QZCore::dataWithBZip2Data(compressed);
    });
    measure("dataWithBZip2Data/libbz2", kLength, [compressed = QZCore::compressBZip2(bytes())] {
        Data out(kLength);
        auto length = static_cast<unsigned>(kLength);
        Data in = compressed;
        BZ2_bzBuffToBuffDecompress(reinterpret_cast<char*>(out.data()), &length,
                                   reinterpret_cast<char*>(in.data()),
                                   static_cast<unsigned>(in.size()), 0, 0);
        return out;
    });
}

void registerGradients() {
    const QZCore::String string = u"#000000,0.000000,#80ff40,0.500000,#ffffff,1.000000";
    measure("gradientForString/QZCore", string.size(),
            [string] { return QZCore::Gradient::gradientForString(string); });
    measure("stringForGradient/QZCore", string.size(),
            [gradient = *QZCore::Gradient::gradientForString(string)] {
                return gradient.stringForGradient();
            });
}

const bool kRegistered = [] {
    registerChecksums();
    registerTexts();
    registerDigests();
    registerEnvelopes();
    registerBzip2();
    registerGradients();
    return true;
}();

}  // namespace
