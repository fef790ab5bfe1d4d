// Reading any bytes as a bzip2 stream, and compressing them.
#include "QZCore/codecs/bzip2.h"
#include "require.h"

using namespace QZCore;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kLimit = 1 << 20;
    const Data bytes(data, data + size);
    const auto read = dataWithBZip2Data(bytes, kLimit);
    require(!read || read->size() <= kLimit);
    if (size > 0) require(dataWithBZip2Data(compressBZip2(bytes)) == bytes);
    return 0;
}
