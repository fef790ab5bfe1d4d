#include "QZCore/markdown/writing.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace QZCore {
namespace {

/// What the preferences say about writing.
struct Dialect {
    explicit Dialect(const Preferences& preferences)
        : boldItalic(preferences.stringForKey(u"Markdown BoldItalic", u"***")),
          bold(preferences.stringForKey(u"Markdown Bold", u"**")),
          italic(preferences.stringForKey(u"Markdown Italic", u"*")),
          underline(preferences.stringForKey(u"Markdown Underline", u"__")),
          strikethrough(preferences.stringForKey(u"Markdown Strikethrough", u"~~")),
          breaksLines(preferences.boolForKey(u"Markdown Replace New Lines with br", true)) {
        const String sizes =
            preferences.stringForKey(u"Markdown Header Sizes", u"32, 24, 18, 16, 13, 11");
        for (StringView rest = sizes;;) {
            headerSizes.push_back(intValue(rest));
            const std::size_t comma = rest.find(u',');
            if (comma == StringView::npos) break;
            rest.remove_prefix(comma + 1);
        }
    }

    /// The level of headers of that size, counted from 1.
    [[nodiscard]] std::optional<std::size_t> headerLevel(double pointSize) const {
        const auto found = std::ranges::find(headerSizes, pointSize);
        if (found == headerSizes.end()) return std::nullopt;
        return static_cast<std::size_t>(found - headerSizes.begin()) + 1;
    }

    String boldItalic;
    String bold;
    String italic;
    String underline;
    String strikethrough;
    bool breaksLines;
    std::vector<std::int32_t> headerSizes;
};

class MarkdownWriter {
public:
    MarkdownWriter(const RichText& text, const Dialect& dialect)
        : text_(text.string()), dialect_(dialect) {
        result_.reserve(text_.size() + text_.size() / 8);
    }

    void add(const TextRunView& run) {
        const StringView part = StringView(text_).substr(run.range.location, run.range.length);
        if (const auto level = headerLevel(run)) {
            result_.append(*level, u'#');
            result_ += u' ';
            append(part);
            return;
        }
        const StringView markers[] = {emphasis(run.attributes), underline(run.attributes),
                                      strikethrough(run.attributes)};
        for (const StringView marker : markers) append(marker);
        appendContent(part, run.attributes.link());
        append(markers[2]);
        append(markers[1]);
        append(markers[0]);
    }

    [[nodiscard]] String take() { return std::move(result_); }

private:
    static bool hasTrait(const TextAttributes& attributes, std::uint32_t trait) {
        const Font* font = attributes.font();
        return font != nullptr && (font->traits & trait) != 0;
    }

    [[nodiscard]] bool startsLine(Range range) const {
        return range.location == 0 || isNewline(text_[range.location - 1]);
    }

    /// The end of the text does not end a line.
    [[nodiscard]] bool endsLine(Range range) const {
        return range.end() < text_.size() && isNewline(text_[range.end()]);
    }

    [[nodiscard]] std::optional<std::size_t> headerLevel(const TextRunView& run) const {
        const bool isBoldLine =
            hasTrait(run.attributes, kFontBold) && startsLine(run.range) && endsLine(run.range);
        if (!isBoldLine) return std::nullopt;
        return dialect_.headerLevel(run.attributes.font()->pointSize);
    }

    [[nodiscard]] StringView emphasis(const TextAttributes& attributes) const {
        if (hasTrait(attributes, kFontBold)) {
            return hasTrait(attributes, kFontItalic) ? dialect_.boldItalic : dialect_.bold;
        }
        return hasTrait(attributes, kFontItalic) ? StringView(dialect_.italic) : u"";
    }

    [[nodiscard]] StringView underline(const TextAttributes& attributes) const {
        const bool isUnderlined = attributes.underlineStyle() == 1 && attributes.link() == nullptr;
        return isUnderlined ? StringView(dialect_.underline) : u"";
    }

    [[nodiscard]] StringView strikethrough(const TextAttributes& attributes) const {
        return attributes.strikethroughStyle() == 1 ? StringView(dialect_.strikethrough) : u"";
    }

    void appendContent(StringView part, const Value* link) {
        if (link == nullptr) return append(part);
        append(u"[");
        append(part);
        append(u"](");
        append(link->stringValue());
        append(u")");
    }

    /// Line feeds are replaced wherever they come from, markers included.
    void append(StringView part) {
        while (dialect_.breaksLines) {
            const std::size_t lineFeed = part.find(u'\n');
            if (lineFeed == StringView::npos) break;
            result_ += part.substr(0, lineFeed);
            result_ += u"<br>";
            part.remove_prefix(lineFeed + 1);
        }
        result_ += part;
    }

    String text_;
    const Dialect& dialect_;
    String result_;
};

}  // namespace

String markdownString(const RichText& text) { return markdownString(text, Preferences::shared()); }

String markdownString(const RichText& text, const Preferences& preferences) {
    const Dialect dialect(preferences);
    MarkdownWriter writer(text, dialect);
    for (const TextRunView run : text.runs()) writer.add(run);
    return writer.take();
}

}  // namespace QZCore
