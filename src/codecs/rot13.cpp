#include <algorithm>

#include "QZCore/codecs/transforming.h"

namespace QZCore {
namespace {

char16_t rotated(char16_t unit) {
    if (unit < u'A' || unit > u'z') return unit;
    const int base = unit <= u'Z' ? u'A' : u'a';
    // The smallest unit on the lower-case base, "[", is 6 below it: the
    // dividend is never negative.
    return static_cast<char16_t>(base + (unit - base + 13) % 26);
}

}  // namespace

String rot13(StringView text) {
    String result(text);
    std::ranges::transform(result, result.begin(), rotated);
    return result;
}

}  // namespace QZCore
