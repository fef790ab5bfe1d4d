#include "quotations.h"

#include "note_lines.h"

namespace qznote {

using namespace QZCore;

String withQuotedEmptyLines(StringView note) {
    String quoted;
    quoted.reserve(note.size());
    CodeLines code;
    while (!note.empty()) {
        const StringView line = takeLine(note);
        const bool isLoneMark = !code.isCode(line) && (line == u">\n" || line == u">");
        quoted += isLoneMark ? u"> " + String(line.substr(1)) : String(line);
    }
    return quoted;
}

}  // namespace qznote
