#include "password.h"

#include <string.h>
#include <unistd.h>

namespace qznote {
namespace {

using namespace QZCore;

void wipe(std::string& bytes) { ::explicit_bzero(bytes.data(), bytes.size()); }

}  // namespace

Password::Password(std::string& bytes) {
    String text = fromUTF8(bytes);
    units_.assign(text.begin(), text.end());
    ::explicit_bzero(text.data(), text.size() * sizeof(char16_t));
    wipe(bytes);
}

Password::~Password() {
    if (!units_.empty()) ::explicit_bzero(units_.data(), units_.size() * sizeof(char16_t));
}

std::optional<Password> readPassword(int descriptor) {
    std::string bytes;
    bytes.reserve(kLongestPassword + 1);  // so that no growth leaves a copy behind
    char byte = 0;
    ssize_t count = 0;
    // Byte by byte: what follows the line is somebody else's.
    while (bytes.size() <= kLongestPassword && (count = ::read(descriptor, &byte, 1)) == 1 &&
           byte != '\n') {
        bytes.push_back(byte);
    }
    std::string asRead = toUTF8(fromUTF8(bytes));
    const bool isGood =
        count >= 0 && !bytes.empty() && bytes.size() <= kLongestPassword && asRead == bytes;
    wipe(asRead);
    if (isGood) return Password(bytes);
    wipe(bytes);
    return std::nullopt;
}

}  // namespace qznote
