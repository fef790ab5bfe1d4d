#include "platform/image_end.h"

#include <algorithm>

namespace QZCore {
namespace {

std::uint64_t bigEndian(DataView bytes) {
    std::uint64_t number = 0;
    for (const std::uint8_t byte : bytes) number = number << 8 | byte;
    return number;
}

constexpr std::uint8_t kEndOfImage = 0xD9;
constexpr std::uint8_t kStartOfScan = 0xDA;
constexpr std::uint8_t kFill = 0xFF;

/// Whether a length and content follow the marker. Below the first are
/// escaped data bytes; restart marks and the start of the image stand alone.
bool startsSegment(std::uint8_t marker) {
    return marker >= 0xC0 && marker != kFill && (marker < 0xD0 || marker > kEndOfImage);
}

}  // namespace

bool pngHasEnd(DataView file) {
    constexpr std::size_t kSignature = 8;
    constexpr std::size_t kFrame = 12;  // length, type and checksum of a chunk
    DataView rest = file.subspan(std::min(kSignature, file.size()));
    while (rest.size() >= kFrame) {
        const std::uint64_t length = bigEndian(rest.first(4));
        if (length > rest.size() - kFrame) return false;
        if (textOf(rest.subspan(4, 4)) == "IEND") return true;
        rest = rest.subspan(kFrame + length);
    }
    return false;
}

bool jpegHasEnd(DataView file) {
    constexpr int kMaximalScans = 24;
    int scans = 0;
    std::size_t at = 0;
    while (at + 1 < file.size()) {
        const std::uint8_t marker = file[at + 1];
        if (file[at] != 0xFF || marker == kFill) {
            ++at;
        } else if (marker == kEndOfImage) {
            return true;
        } else if (marker == kStartOfScan && ++scans > kMaximalScans) {
            return false;
        } else if (startsSegment(marker) && file.size() - at >= 4) {
            at += 2 + bigEndian(file.subspan(at + 2, 2));
        } else {
            at += 2;
        }
    }
    return false;
}

bool bmpReachesPixels(DataView file) {
    constexpr std::size_t kPixelStart = 10;
    constexpr std::size_t kHeaderLength = 14;
    if (file.size() < kHeaderLength + 4) return false;
    const auto number = [&](std::size_t at) {
        return std::uint32_t{file[at]} | std::uint32_t{file[at + 1]} << 8 |
               std::uint32_t{file[at + 2]} << 16 | std::uint32_t{file[at + 3]} << 24;
    };
    return number(kPixelStart) <= file.size() && number(kHeaderLength) <= file.size();
}

}  // namespace QZCore
