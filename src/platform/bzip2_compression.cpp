#include <bzlib.h>

#include <climits>
#include <cstdint>

#include "platform/bzip2.h"

namespace QZCore {
namespace {

constexpr int kBlockSize = 5;  // in 100,000 bytes
constexpr int kVerbosity = 0;
constexpr int kDefaultWorkFactor = 0;

/// The length times 1.01, and 600: what the library asks for, and some more.
std::uint64_t longestResult(std::size_t length) { return length + length / 100 + 600; }

// The library takes pointers to char that are not const, and leaves the bytes
// that it reads alone.
char* charsOf(DataView data) {
    return const_cast<char*>(reinterpret_cast<const char*>(data.data()));
}

}  // namespace

int compressBzip2(Data& out, DataView data) {
    out.clear();
    if (longestResult(data.size()) > UINT_MAX) return BZ_PARAM_ERROR;
    auto length = static_cast<unsigned>(longestResult(data.size()));
    out.resize(length);
    const int error = BZ2_bzBuffToBuffCompress(charsOf(out), &length, charsOf(data),
                                               static_cast<unsigned>(data.size()), kBlockSize,
                                               kVerbosity, kDefaultWorkFactor);
    out.resize(error == BZ_OK ? length : 0);
    out.shrink_to_fit();
    return error;
}

}  // namespace QZCore
