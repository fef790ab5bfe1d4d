#include "QZCore/codecs/file_names.h"

namespace QZCore {
namespace {

bool isUnsafe(char16_t unit) {
    constexpr StringView kUnsafe = u"/\\?%*:\"<>";
    return unit == u'\0' || kUnsafe.find(unit) != StringView::npos;
}

}  // namespace

String fileSafe(StringView text) { return fileSafeTruncatedToMaxLength(text, 0, {}); }

String fileSafeTruncatedToMaxLength(StringView text, std::size_t maxLength,
                                    StringView withDefault) {
    String name(trimmedOfWhitespaceAndNewlines(text));
    std::erase_if(name, isUnsafe);
    if (maxLength != 0 && name.size() > maxLength) name.resize(maxLength);
    return name.empty() ? String(withDefault) : name;
}

}  // namespace QZCore
