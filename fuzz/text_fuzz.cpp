// The border to UTF-8 and the readers of numbers.
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/text.h"
#include "require.h"

using namespace QZCore;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const String text = fromUTF8(textOf({data, size}));
    const std::string bytes = toUTF8(text);
    require(fromUTF8(bytes) == text);

    const ReadNumber read = readDouble(text);
    require(read.length <= text.size());
    require(readDouble(StringView(text).substr(0, read.length)).length == read.length);
    return 0;
}
