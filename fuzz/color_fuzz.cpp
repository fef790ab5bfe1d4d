// The readers of colour strings, and the printing of what they read.
#include <cstring>

#include "QZCore/color.h"
#include "QZCore/foundation/log.h"
#include "require.h"

using namespace QZCore;

namespace {

struct Silence final : LogSink {
    void write(StringView) override {}
};

/// The bytes as UTF-16 units in the machine's order; an odd byte is dropped.
String unitsOf(const std::uint8_t* data, std::size_t size) {
    String text(size / 2, u'\0');
    if (!text.empty()) std::memcpy(text.data(), data, text.size() * 2);
    return text;
}

String printedAgain(StringView string) { return Color::colorForString(string)->stringForColor(); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool silenced = (setLogSink(std::make_shared<Silence>()), true);
    (void)silenced;
    const String text = unitsOf(data, size);
    (void)Color::colorForHexString(text);
    (void)Color::colorForRGBString(text);

    const auto color = Color::colorForString(text);
    require(color.has_value() == !text.empty());
    if (!color) return 0;
    (void)color->appropriateLabelColor();
    const float factor = static_cast<float>(text.front()) / 16'384;
    require(Color::colorForString(color->emboldenedColorByPercentage(factor).stringForColor())
                .has_value());
    // A printed alpha may round to 1; an opaque colour loses the digits that
    // components out of range have too many. Then its string stays.
    const String settled = printedAgain(printedAgain(color->stringForColor()));
    require(printedAgain(settled) == settled);
    return 0;
}
