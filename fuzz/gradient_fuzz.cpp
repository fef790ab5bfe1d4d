// Gradient strings of any text.
#include "QZCore/color/gradient.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/log.h"
#include "QZCore/foundation/preferences.h"
#include "require.h"

using namespace QZCore;

namespace {

struct Silence final : LogSink {
    void write(StringView) override {}
};

/// Silences the log and makes translucent colours print in the form that reads
/// back.
bool prepared() {
    setLogSink(std::make_shared<Silence>());
    Preferences::shared().setObject(true, u"Color Hex RGBA");
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool isPrepared = prepared();
    const auto gradient = Gradient::gradientForString(fromUTF8(textOf({data, size})));
    if (!gradient || !isPrepared) return 0;
    const auto string = gradient->stringForGradient();
    require(string.has_value());
    const auto again = Gradient::gradientForString(*string);
    require(again && again->stops.size() == gradient->stops.size());
    return 0;
}
