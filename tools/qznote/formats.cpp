#include "formats.h"

#include "QZCore/richtext/html.h"
#include "QZCore/richtext/rtf.h"
#include "ansi_writer.h"
#include "markdown_writer.h"
#include "note.h"
#include "runs_writer.h"
#include "stand_ins.h"

namespace qznote {
namespace {

using namespace QZCore;

std::string writeHtml(const RichText& text, const Writing& writing) {
    return toUTF8(htmlFromRichText(text, {.title = writing.title, .base = writing.base}));
}

std::string writeRtf(const RichText& text, const Writing& /*writing*/) {
    return std::string(textOf(text.RTF()));
}

std::string writeAnsi(const RichText& text, const Writing& writing) {
    return ansiText(withLineFeeds(text), writing.base);
}

std::string writeMarkdown(const RichText& text, const Writing& writing) {
    return markdownNote(withLineFeeds(text), writing.base);
}

std::string writeText(const RichText& text, const Writing& /*writing*/) {
    const RichText lines = withLineFeeds(text);
    return toUTF8(plainText(lines, {0, lines.length()}));
}

std::string writeRuns(const RichText& text, const Writing& /*writing*/) { return runLines(text); }

constexpr OutputFormat kOutputFormats[] = {
    {"html", " .html .htm ", "a page that needs no other file", writeHtml},
    {"rtf", " .rtf ", "a document for word processors", writeRtf},
    {"ansi", "", "text with colours and links for a terminal", writeAnsi},
    {"markdown", " .md .markdown ", "Markdown, as far as it can say what the note shows",
     writeMarkdown},
    {"text", " .txt ", "text alone", writeText},
    {"runs", "", "every stretch of text with its attributes, one a line", writeRuns},
};

std::optional<RichText> readMarkdown(DataView bytes, const StyleSheet& styles) {
    return renderedNote(noteText(bytes), styles);
}

std::optional<RichText> readHtml(DataView bytes, const StyleSheet& /*styles*/) {
    constexpr char16_t kByteOrderMark = 0xFEFF;
    const String html = fromUTF8(textOf(bytes));
    return RichText::attributedStringWithHTML(
        StringView(html).substr(html.starts_with(kByteOrderMark) ? 1 : 0));
}

std::optional<RichText> readRtf(DataView bytes, const StyleSheet& /*styles*/) {
    return richTextFromRTF(bytes);
}

constexpr InputFormat kInputFormats[] = {
    {"markdown", " .md .markdown ", readMarkdown},
    {"html", " .html .htm ", readHtml},
    {"rtf", " .rtf ", readRtf},
};

}  // namespace

std::span<const OutputFormat> outputFormats() { return kOutputFormats; }

std::span<const InputFormat> inputFormats() { return kInputFormats; }

}  // namespace qznote
