#include "note.h"

#include "QZCore/foundation/preferences.h"
#include "QZCore/markdown/rendering.h"
#include "fences.h"
#include "list_indent.h"
#include "loose_lists.h"
#include "quotations.h"

namespace qznote {
namespace {

using namespace QZCore;

constexpr double kPointSize = 12;

TextAttributes plainAttributes() {
    return {{NSFontAttributeName, Value::boxed(FontManager::shared().userFont(kPointSize))}};
}

Dictionary settingsFor(StringView note) {
    constexpr const char16_t* kCodeFonts =
        u"Menlo,DejaVu Sans Mono,Liberation Mono,Noto Sans Mono,Courier New,Mono";
    return {
        {u"Markdown Inline Code Font", kCodeFonts},
        {u"Markdown Code Block Font", kCodeFonts},
        {u"Link Color", u"#1a73e8"},
        {u"Import List Spaces Per Indent", blanksPerLevel(note)},
    };
}

}  // namespace

String noteText(DataView bytes) {
    constexpr char16_t kByteOrderMark = 0xFEFF;
    const String raw = fromUTF8(textOf(bytes));
    String text;
    text.reserve(raw.size());
    for (std::size_t i = raw.starts_with(kByteOrderMark) ? 1 : 0; i < raw.size(); ++i) {
        const bool endsInFeed = raw[i] == u'\r' && i + 1 < raw.size() && raw[i + 1] == u'\n';
        if (!endsInFeed) text += raw[i] == u'\r' ? u'\n' : raw[i];
    }
    return withPlainFences(withTightLists(withQuotedEmptyLines(text)));
}

TextAttributes baseAttributes(const StyleSheet& styles) {
    const TextAttributes plain = plainAttributes();
    const Value body = styles.objectForKey(u"body");
    if (body.dictionary() == nullptr) return plain;
    return plain.mergedWith(
        fontAttributesWithDefaultStyle(nullptr, body.dictionary(), *plain.font()));
}

RichText renderedNote(StringView note, const StyleSheet& styles) {
    const Preferences preferences(settingsFor(note));
    RichText text(note, plainAttributes());
    renderContainedMarkdownWithStyles(text, styles, markdownSyntaxFromPreferences(preferences),
                                      preferences);
    return text;
}

}  // namespace qznote
