#include <algorithm>

#include "QZCore/codecs/file_names.h"
#include "platform/folded_text.h"

namespace QZCore {
namespace {

StringView lastPathComponent(StringView path) {
    while (path.size() > 1 && path.back() == u'/') path.remove_suffix(1);
    if (path == u"/") return path;
    return path.substr(path.rfind(u'/') + 1);
}

struct NameParts {
    StringView stem;
    StringView extension;
};

NameParts partsOfName(StringView name) {
    const std::size_t dot = name.rfind(u'.');
    if (dot == StringView::npos || dot == 0 || dot + 1 == name.size()) return {name, {}};
    return {name.substr(0, dot), name.substr(dot + 1)};
}

}  // namespace

String fileNameOnly(StringView text) {
    NameParts parts = partsOfName(lastPathComponent(text));
    if (parts.extension == u"alias") parts = partsOfName(parts.stem);
    return String(parts.stem);
}

int caseInsensitiveCompareOfFileNameOnly(StringView text, StringView other) {
    return std::clamp(caseFolded(fileNameOnly(text)).compare(caseFolded(fileNameOnly(other))), -1,
                      1);
}

}  // namespace QZCore
