#include "platform/pango_font_runs.h"

#include <unicode/uchar.h>

namespace QZCore {
namespace {

constexpr char32_t kReplacementCharacter = 0xFFFD;

/// Whether a character that needs no glyph has a part in how its neighbours
/// are shaped, as joiners and variation selectors have.
bool takesPartInShaping(char32_t character) {
    return u_hasBinaryProperty(static_cast<UChar32>(character),
                               UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0;
}

void appendUTF8(std::string& bytes, char32_t character) {
    char encoded[U8_MAX_LENGTH];
    int length = 0;
    U8_APPEND_UNSAFE(encoded, length, character);
    bytes.append(encoded, static_cast<std::size_t>(length));
}

void append(FontLine& line, char32_t character, const InstalledFace& face) {
    if (line.runs.empty() || line.runs.back().face != &face) {
        line.runs.push_back({&face, line.bytes.size(), line.bytes.size()});
    }
    appendUTF8(line.bytes, character);
    line.runs.back().end = line.bytes.size();
}

}  // namespace

FontLine fontLineOf(StringView text, const InstalledFace& face,
                    const FontSubstitutes& substitutes) {
    FontLine line;
    const InstalledFace* current = &face;
    for (std::size_t i = 0; i < text.size();) {
        const CodePoint point = codePointAt(text, i);
        i += point.length;
        const char32_t character = isCharacter(point.value) ? point.value : kReplacementCharacter;
        if (!needsNoGlyph(character)) {
            current = substitutes.faceShowing(character, face);
        } else if (!takesPartInShaping(character)) {
            continue;
        }
        append(line, character, *current);
    }
    return line;
}

}  // namespace QZCore
