// Rich text written as RTF and as HTML and read again, beside Qt's documents.
// Qt knows no RTF; its HTML stands in for it, the one form in which its
// documents leave and come back.
//
// The text has paragraphs of words in several looks, headings, items of a list
// and links. Both read the same HTML, that of the library.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <memory>

#include "QZCore/richtext.h"

namespace {

using namespace QZCore;

constexpr StringView kWord = u"some words < \u00E9 ";
constexpr std::size_t kWordsPerLine = 8;
constexpr std::size_t kLinesPerPart = 10;

/// How each word and each line of the text looks.
enum class Line { Heading, Item, Paragraph };
Line lineAt(std::size_t line) {
    const std::size_t place = line % kLinesPerPart;
    return place == 0 ? Line::Heading : place < 4 ? Line::Item : Line::Paragraph;
}
bool isBold(std::size_t word) { return word % 4 == 1; }
bool isRed(std::size_t word) { return word % 4 == 2; }
bool isLink(std::size_t word) { return word % 16 == 3; }
constexpr StringView kTarget = u"https://example.org/a?b=c";
constexpr double kHeadingSize = 24;

std::size_t linesOf(std::size_t size) { return size / (kWord.size() * kWordsPerLine); }

// ---- The text ---------------------------------------------------------------

Value styleOf(Line line) {
    ParagraphStyle style;
    style.paragraphSpacing = 6;
    if (line == Line::Item) {
        style.headIndent = 20;
        style.tabStops = {{TextAlignment::Right, 15}, {TextAlignment::Natural, 20}};
    }
    return Value::boxed(style);
}

TextAttributes attributesOf(std::size_t word, Line line) {
    const FontManager fonts = FontManager::shared();
    Font font = fonts.userFont(line == Line::Heading ? kHeadingSize : 12);
    if (isBold(word) || line == Line::Heading) font = fonts.convertFontToHaveTrait(font, kFontBold);
    TextAttributes attributes{{NSFontAttributeName, Value::boxed(font)},
                              {NSParagraphStyleAttributeName, styleOf(line)}};
    if (isRed(word)) {
        attributes =
            attributes.withAttribute(NSForegroundColorAttributeName,
                                     Value::boxed(Color::colorWithCalibratedRed(1, 0, 0, 1)));
    }
    if (isLink(word)) attributes = attributes.withAttribute(NSLinkAttributeName, kTarget);
    return attributes;
}

RichText textOf(std::size_t size) {
    RichText text;
    for (std::size_t line = 0; line < linesOf(size); ++line) {
        const Line kind = lineAt(line);
        if (kind == Line::Item) {
            text.appendAttributedString(RichText(u"\t\u25CF\t", attributesOf(0, kind)));
        }
        for (std::size_t word = 0; word < kWordsPerLine; ++word) {
            text.appendAttributedString(RichText(kWord, attributesOf(word, kind)));
        }
        text.appendAttributedString(RichText(u"\n", attributesOf(0, kind)));
    }
    return text;
}

// ---- Qt's -------------------------------------------------------------------

void startQt() {
    static int argumentCount = 1;
    static char name[] = "export_bench";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    [[maybe_unused]] static auto& application = *new QGuiApplication(argumentCount, arguments);
}

std::unique_ptr<QTextDocument> emptyDocument() {
    startQt();
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    return document;
}

QTextCharFormat formatOf(std::size_t word, Line line) {
    QTextCharFormat format;
    if (line == Line::Heading) format.setFontPointSize(kHeadingSize);
    if (isBold(word) || line == Line::Heading) format.setFontWeight(QFont::Bold);
    if (isRed(word)) format.setForeground(QColor(255, 0, 0));
    if (isLink(word)) {
        format.setAnchor(true);
        format.setAnchorHref(QString::fromStdU16String(String(kTarget)));
    }
    return format;
}

QTextBlockFormat blockFormatOf(Line line) {
    QTextBlockFormat format;
    format.setBottomMargin(8);
    if (line == Line::Heading) format.setHeadingLevel(1);
    return format;
}

std::unique_ptr<QTextDocument> documentOf(std::size_t size) {
    auto document = emptyDocument();
    QTextCursor cursor(document.get());
    for (std::size_t line = 0; line < linesOf(size); ++line) {
        const Line kind = lineAt(line);
        if (line > 0) cursor.insertBlock(blockFormatOf(kind));
        if (kind == Line::Item && lineAt(line - 1) != Line::Item) {
            cursor.createList(QTextListFormat::ListDisc);
        } else if (kind == Line::Paragraph && cursor.currentList() != nullptr) {
            cursor.currentList()->remove(cursor.block());
        }
        for (std::size_t word = 0; word < kWordsPerLine; ++word) {
            cursor.insertText(QString::fromStdU16String(String(kWord)), formatOf(word, kind));
        }
    }
    return document;
}

// ---- Jobs -------------------------------------------------------------------

std::size_t sizeOf(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

void writeRtf(benchmark::State& state) {
    const RichText text = textOf(sizeOf(state));
    for (auto _ : state) benchmark::DoNotOptimize(text.RTF().size());
}

void readRtf(benchmark::State& state) {
    const Data document = textOf(sizeOf(state)).RTF();
    for (auto _ : state) benchmark::DoNotOptimize(richTextFromRTF(document)->length());
}

void writeHtml(benchmark::State& state) {
    const RichText text = textOf(sizeOf(state));
    for (auto _ : state) benchmark::DoNotOptimize(htmlFromRichText(text).size());
}

void readHtml(benchmark::State& state) {
    const String html = htmlFromRichText(textOf(sizeOf(state)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(RichText::attributedStringWithHTML(html)->length());
    }
}

void writeHtmlWithQt(benchmark::State& state) {
    const auto document = documentOf(sizeOf(state));
    for (auto _ : state) benchmark::DoNotOptimize(document->toHtml().size());
}

void readHtmlWithQt(benchmark::State& state) {
    const QString html = QString::fromStdU16String(htmlFromRichText(textOf(sizeOf(state))));
    for (auto _ : state) {
        const auto document = emptyDocument();
        document->setHtml(html);
        benchmark::DoNotOptimize(document->characterCount());
    }
}

constexpr int k100KB = 100'000;
constexpr int k1MB = 1'000'000;
constexpr int k10MB = 10'000'000;

void withSizes(benchmark::internal::Benchmark* row) {
    row->Arg(k100KB)->Arg(k1MB)->Arg(k10MB)->Unit(benchmark::kMillisecond);
}

void withQtsSizes(benchmark::internal::Benchmark* row) {
    row->Arg(k100KB)->Arg(k1MB)->Unit(benchmark::kMillisecond);
}

// Ours come first: Qt leaves the upper halves of vector registers in use, which
// slows down whatever the processor does with the lower ones later on.
BENCHMARK(writeRtf)->Name("write RTF/QZCore")->Apply(withSizes);
BENCHMARK(readRtf)->Name("read RTF/QZCore")->Apply(withSizes);
BENCHMARK(writeHtml)->Name("write HTML/QZCore")->Apply(withSizes);
BENCHMARK(readHtml)->Name("read HTML/QZCore")->Apply(withSizes);
BENCHMARK(writeHtmlWithQt)->Name("write RTF/Qt")->Apply(withQtsSizes);
BENCHMARK(readHtmlWithQt)->Name("read RTF/Qt")->Apply(withQtsSizes);
BENCHMARK(writeHtmlWithQt)->Name("write HTML/Qt")->Apply(withQtsSizes);
BENCHMARK(readHtmlWithQt)->Name("read HTML/Qt")->Apply(withQtsSizes);

}  // namespace
