#include "digest_report.h"

#include "QZCore/codecs/checksums.h"
#include "QZCore/codecs/digests.h"

namespace qznote {
namespace {

using namespace QZCore;

std::string hexadecimal(std::uint32_t value) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    for (int shift = 28; shift >= 0; shift -= 4) text += kDigits[value >> shift & 15];
    return text;
}

}  // namespace

std::string digestReport(DataView data) {
    return "bytes: " + std::to_string(data.size()) +
           "\nlookup2: " + hexadecimal(jenkinsHash(data)) + "\ncrc32: " + hexadecimal(crc32(data)) +
           "\nsha1: " + toUTF8(SHA1AsHexString(data)) +
           "\nsha256: " + toUTF8(SHA256AsHexString(data)) + "\n";
}

}  // namespace qznote
