// Rendering: a note rendered in the smallest parts is the note rendered as a
// whole, and what keeps passes away is gone.
#include "QZCore/markdown.h"
#include "QZCore/platform/fonts.h"
#include "QZCore/platform/url_loading.h"
#include "markdown/rendering_in_parts.h"
#include "require.h"

using namespace QZCore;

namespace {

struct Settings {
    explicit Settings(const Dictionary& values) : preferences(values), syntax(preferences) {}

    Preferences preferences;
    MarkdownSyntax syntax;
};

const Settings& settingsNumber(std::size_t number) {
    static const Settings* const all[] = {
        new Settings(Dictionary{}),
        new Settings({{u"Markdown Use Ignore Block", false},
                      {u"Markdown Regex Header No Space", true},
                      {u"Import List Spaces Per Indent", -1}}),
        new Settings({{u"Markdown RegEx Link", u"<(a+)[|](b*)>"}}),
    };
    return *all[number % std::size(all)];
}

/// Units of any value, also surrogates without partner.
String unitsOf(const std::uint8_t* data, std::size_t size) {
    String units = fromUTF8(textOf({data, size}));
    for (char16_t& unit : units) {
        if (unit == u'\x7F') unit = 0xD83D;
    }
    return units;
}

RichText rendered(const RichText& note, const Settings& settings, std::size_t partLength) {
    RichText text = note;
    const StyleSheet styles{{u"body", Dictionary{{kStyleFontSize, 13}}},
                            {u"**", Dictionary{{kStyleFontColor, u"red"}}}};
    renderContainedMarkdownWithStyles(text, styles, settings.syntax, settings.preferences,
                                      partLength);
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool prepared = (setSharedFontCatalog(makeInMemoryFontCatalog()),
                                  setSharedUrlLoader(makeRefusingUrlLoader()), true);
    require(prepared);
    if (size == 0) return 0;
    const Settings& settings = settingsNumber(data[0]);
    RichText note(unitsOf(data + 1, size - 1), {});
    note.addAttributes({{kIgnoreBlockAttributeName, u""}}, {data[0], data[0] % 8U});

    const RichText whole = rendered(note, settings, note.length());
    require(rendered(note, settings, 1) == whole);
    std::size_t end = 0;
    for (const auto& run : whole.runs()) {
        require(run.attributes.find(kIgnoreBlockAttributeName) == nullptr);
        end = run.range.end();
    }
    require(end == whole.length());
    const auto outline = listOutlineFromMarkdown(note, settings.syntax, settings.preferences);
    RichText written;
    richTextListForNode(*outline, {}, {}, true, {}, written, settings.preferences);
    return 0;
}
