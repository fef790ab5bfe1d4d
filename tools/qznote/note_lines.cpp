#include "note_lines.h"

#include <algorithm>

namespace qznote {

using namespace QZCore;

constexpr StringView kFence = u"```";

StringView takeLine(StringView& rest) {
    const std::size_t feed = rest.find(u'\n');
    const StringView line = rest.substr(0, feed == StringView::npos ? feed : feed + 1);
    rest.remove_prefix(line.size());
    return line;
}

std::size_t indentationOf(StringView line) {
    return std::min(line.find_first_not_of(u" \t"), line.size());
}

bool isEmptyLine(StringView line) { return trimmedOfWhitespaceAndNewlines(line).empty(); }

bool opensCode(StringView line) {
    line.remove_prefix(indentationOf(line));
    return line.starts_with(kFence) && line.find(u'`', kFence.size()) == StringView::npos;
}

bool closesCode(StringView line) {
    if (line.ends_with(u'\n')) line.remove_suffix(1);
    return trimmedOfWhitespace(line) == kFence;
}

bool CodeLines::isCode(StringView line) {
    const bool isCode = isOpen_;
    isOpen_ = isCode ? !closesCode(line) : opensCode(line);
    return isCode;
}

}  // namespace qznote
