// The readers of RTF and RTFD: what was read is written and read again to the
// same document.
#include "QZCore/richtext/rtf.h"

#include "QZCore/platform/fonts.h"
#include "require.h"

using namespace QZCore;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool fontsAreMadeUp = [] {
        (void)setSharedFontCatalog(makeInMemoryFontCatalog());
        return true;
    }();
    require(fontsAreMadeUp);
    const DataView bytes{data, size};
    (void)richTextFromRTFD(bytes);
    const auto text = richTextFromRTF(bytes);
    if (!text) return 0;
    const auto once = richTextFromRTF(text->RTF());
    require(once.has_value());
    const auto twice = richTextFromRTF(once->RTF());
    require(twice == once);
    require(richTextFromRTFD(text->RTFD()).has_value());
    return 0;
}
