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

}  // namespace

std::vector<FontRun> fontRunsOf(StringView text, const InstalledFace& face,
                                const FontSubstitutes& substitutes) {
    std::vector<FontRun> runs;
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
        if (runs.empty() || runs.back().face != current) runs.push_back({current, {}});
        appendCodePoint(runs.back().text, character);
    }
    return runs;
}

}  // namespace QZCore
