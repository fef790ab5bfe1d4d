#include <algorithm>

#include "QZCore/markdown/detection.h"

namespace QZCore {

namespace {

StringView withoutIndentation(StringView line) {
    return line.substr(std::min(line.find_first_not_of(u" \t"), line.size()));
}

bool isIndented(StringView line) { return withoutIndentation(line).size() < line.size(); }

bool isTask(StringView line) { return withoutIndentation(line).starts_with(u"- "); }

// A character other than a tab or hyphen, at least one more, and a colon.
bool isProject(StringView line) {
    if (line.empty() || line.front() == u'\t' || line.front() == u'-') return false;
    return line.size() >= codePointAt(line, 0).length + 2 && line.back() == u':';
}

// Takes the first line off `text`, and the one unit that ends it.
StringView takeLine(StringView& text) {
    const auto end = static_cast<std::size_t>(std::ranges::find_if(text, isNewline) - text.begin());
    const StringView line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

}  // namespace

// The text is trimmed, so its last line is not empty, and what is left of it
// after a line is not empty either unless that line was the last.
bool isTaskPaperOutline(StringView text) {
    text = trimmedOfWhitespaceAndNewlines(text);
    if (!isProject(takeLine(text))) return false;
    bool hasTask = false;
    while (!text.empty()) {
        const StringView line = takeLine(text);
        if (isTask(line)) {
            hasTask = true;
        } else if (!isIndented(line)) {
            return false;
        }
    }
    return hasTask;
}

}  // namespace QZCore
