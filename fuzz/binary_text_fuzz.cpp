// Base32 and base64, there and back, and base32 from any text.
#include "QZCore/codecs/binary_text.h"
#include "foundation/base64.h"
#include "require.h"

using namespace QZCore;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Data bytes(data, data + size);
    require(dataWithBase32String(base32String(bytes)) == bytes);
    std::string base64;
    appendBase64(base64, bytes);
    require(base64Decoded(base64) == bytes);
    require(urlSafeBase64(bytes).size() == (size * 4 + 2) / 3);

    const String text = fromUTF8(textOf(bytes));
    const auto read = dataWithBase32String(text);
    require(read && read->size() <= text.size() * 5 / 8);
    if (const auto decoded = base64Decoded(textOf(bytes))) require(decoded->size() <= size);
    return 0;
}
