#include "QZCore/codecs/comparing.h"

namespace QZCore {
namespace {

/// Takes the first part off `version`, up to the next dot, and reads it. An
/// exhausted version goes on with zeros.
std::int64_t takePart(StringView& version) {
    const std::size_t dot = version.find(u'.');
    const std::int64_t value = integerValue(version.substr(0, dot));
    version.remove_prefix(dot == StringView::npos ? version.size() : dot + 1);
    return value;
}

}  // namespace

int compareToVersion(StringView text, StringView version) {
    while (!text.empty() || !version.empty()) {
        const std::int64_t ours = takePart(text);
        const std::int64_t theirs = takePart(version);
        if (ours != theirs) return ours < theirs ? -1 : 1;
    }
    return 0;
}

}  // namespace QZCore
