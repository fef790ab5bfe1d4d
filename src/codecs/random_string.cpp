#include <unistd.h>

#include <array>

#include "QZCore/codecs/parsing.h"

namespace QZCore {
namespace {

constexpr std::size_t kLongest = 1'000'000'000;

constexpr StringView kAlphabet = u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

// The bytes from here on are thrown away: with them, the characters that the
// alphabet begins with would come more often than the others.
constexpr std::size_t kFairBytes = 256 / kAlphabet.size() * kAlphabet.size();

}  // namespace

String randomStringWithLength(std::size_t length) {
    if (length > kLongest) return {};
    String string;
    string.reserve(length);
    std::array<std::uint8_t, 256> bytes;  // as many as one call may ask for
    while (string.size() < length) {
        if (getentropy(bytes.data(), bytes.size()) != 0) return {};
        for (const std::uint8_t byte : bytes) {
            if (byte < kFairBytes && string.size() < length) {
                string.push_back(kAlphabet[byte % kAlphabet.size()]);
            }
        }
    }
    return string;
}

}  // namespace QZCore
