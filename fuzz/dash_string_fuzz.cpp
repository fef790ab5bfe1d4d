// The reader of dash strings.
#include "QZCore/bezier/bezier_path.h"
#include "QZCore/foundation/data.h"
#include "require.h"

using namespace QZCore;

namespace {

BezierPath dashed(StringView string, double lineWidth) {
    BezierPath path;
    path.setLineWidth(lineWidth);
    path.setLineDashFromString(string);
    return path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const String string = fromUTF8(textOf({data, size}));
    const BezierPath once = dashed(string, 1);
    const BezierPath twice = dashed(string, 2);
    require(once.lineDash().size() <= 30 && once.lineDash().size() <= string.size());
    require(once.lineDash().size() == twice.lineDash().size());
    for (std::size_t i = 0; i < once.lineDash().size(); ++i) {
        require(twice.lineDash()[i] == 2 * once.lineDash()[i]);
    }
    require(twice.lineDashPhase() == 2 * once.lineDashPhase());
    return 0;
}
