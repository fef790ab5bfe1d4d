// What editors and inspectors ask of a whole text and do to it, beside Qt's
// documents: a text of 10 units a run, fonts and colours alternating.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <memory>

#include "QZCore/markdown/writing.h"
#include "QZCore/richtext.h"

namespace {

constexpr std::size_t kRun = 10;
constexpr std::size_t kRunsPerLine = 8;
constexpr std::size_t kRunsPerAttachment = 100;

bool isBold(std::size_t run) { return run % 2 == 1; }
bool isRed(std::size_t run) { return run % 3 == 1; }

QZCore::String wordOf(std::size_t run) {
    QZCore::String word = u"words here";
    if (run % kRunsPerLine == 0) word.back() = u'\n';
    if (run % kRunsPerAttachment == 0) word.front() = QZCore::kAttachmentCharacter;
    return word;
}

/// What an inspector asks of a whole text to show its state.
struct Answers {
    bool hasOneColor = false;
    bool hasOneFontAndSize = false;
    bool hasLinks = false;
    bool hasLists = false;
    bool hasDirections = false;
};

class Ours {
public:
    explicit Ours(std::size_t size) {
        const QZCore::FontManager fonts = QZCore::FontManager::shared();
        const QZCore::Font plain = fonts.userFont(12);
        const QZCore::Font bold = fonts.convertFontToHaveTrait(plain, QZCore::kFontBold);
        for (std::size_t run = 0; run < size / kRun; ++run) {
            QZCore::TextAttributes attributes{
                {QZCore::NSFontAttributeName, QZCore::Value::boxed(isBold(run) ? bold : plain)}};
            if (isRed(run)) {
                attributes =
                    attributes.withAttribute(QZCore::NSForegroundColorAttributeName, red());
            }
            text_.appendAttributedString(QZCore::RichText(wordOf(run), attributes));
        }
    }

    [[nodiscard]] std::size_t commonAttributes() const {
        return text_.commonAttributes()->entries().size();
    }
    [[nodiscard]] Answers askWholeText() const {
        return {text_.hasSameTextColor(), text_.hasSameFontAndSize(), text_.containsLinks(),
                text_.containsTextBlocksOrLists(), text_.containsWritingDirection()};
    }
    void enlarge(double size) {
        QZCore::changeCharacters(text_, {0, text_.length()},
                                 {.fontSize = static_cast<float>(size)});
    }
    void restyle(double size) {
        const QZCore::Font font = QZCore::FontManager::shared().userFont(size);
        text_.applyFontAttributes({{QZCore::NSFontAttributeName, QZCore::Value::boxed(font)},
                                   {QZCore::NSForegroundColorAttributeName, red()}});
    }
    void removeAttachments() { text_.removeAttachments(); }
    [[nodiscard]] std::size_t markdown() const { return QZCore::markdownString(text_).size(); }

private:
    static QZCore::Value red() {
        return QZCore::Value::boxed(QZCore::Color::colorWithCalibratedRed(1, 0, 0, 1));
    }

    QZCore::RichText text_;
};

void startQt() {
    static int argumentCount = 1;
    static char name[] = "editing_bench";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    [[maybe_unused]] static auto& application = *new QGuiApplication(argumentCount, arguments);
}

class QtDocument {
public:
    explicit QtDocument(std::size_t size) {
        startQt();
        document_ = std::make_unique<QTextDocument>();
        document_->setUndoRedoEnabled(false);
        QTextCursor cursor(document_.get());
        for (std::size_t run = 0; run < size / kRun; ++run) {
            QTextCharFormat format;
            if (isBold(run)) format.setFontWeight(QFont::Bold);
            if (isRed(run)) format.setForeground(QColor(255, 0, 0));
            cursor.insertText(QString::fromStdU16String(wordOf(run)), format);
        }
    }

    [[nodiscard]] std::size_t commonAttributes() const {
        std::size_t bold = 0;
        std::size_t red = 0;
        forEachRun([&](const QTextCharFormat& format, int length) {
            bold += format.fontWeight() == QFont::Bold ? 1 : 0;
            if (format.foreground().color().red() == 255) red += static_cast<std::size_t>(length);
        });
        return bold + red;
    }
    [[nodiscard]] Answers askWholeText() const {
        const QTextCharFormat first = document_->begin().begin().fragment().charFormat();
        const QBrush color = first.foreground();
        const QVariant families = first.fontFamilies();
        const double size = first.fontPointSize();
        Answers answers{.hasOneColor = true, .hasOneFontAndSize = true};
        forEachRun([&](const QTextCharFormat& format, int /*length*/) {
            answers.hasOneColor = answers.hasOneColor && format.foreground() == color;
            answers.hasOneFontAndSize = answers.hasOneFontAndSize &&
                                        format.fontPointSize() == size &&
                                        format.fontFamilies() == families;
            answers.hasLinks = answers.hasLinks || format.isAnchor();
        });
        for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
            answers.hasLists = answers.hasLists || block.textList() != nullptr;
            answers.hasDirections =
                answers.hasDirections ||
                block.blockFormat().layoutDirection() != Qt::LayoutDirectionAuto;
        }
        return answers;
    }
    void enlarge(double size) {
        QTextCharFormat format;
        format.setFontPointSize(size);
        changeAll(format);
    }
    void restyle(double size) {
        QTextCharFormat format;
        format.setFontFamilies({QStringLiteral("Sans")});
        format.setFontPointSize(size);
        format.setForeground(QColor(255, 0, 0));
        changeAll(format);
    }
    void removeAttachments() {
        QTextCursor found = document_->find(QString(QChar(QZCore::kAttachmentCharacter)));
        while (!found.isNull()) {
            found.removeSelectedText();
            found = document_->find(QString(QChar(QZCore::kAttachmentCharacter)), found);
        }
    }
    [[nodiscard]] std::size_t markdown() const {
        return static_cast<std::size_t>(document_->toMarkdown().size());
    }

private:
    template <class Visit>
    void forEachRun(Visit visit) const {
        for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
            for (auto at = block.begin(); !at.atEnd(); ++at) {
                visit(at.fragment().charFormat(), at.fragment().length());
            }
        }
    }
    void changeAll(const QTextCharFormat& format) {
        QTextCursor cursor(document_.get());
        cursor.select(QTextCursor::Document);
        cursor.mergeCharFormat(format);
    }

    std::unique_ptr<QTextDocument> document_;
};

std::size_t sizeOf(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

template <class Contestant, auto kQuestion>
void ask(benchmark::State& state) {
    const Contestant text(sizeOf(state));
    for (auto _ : state) benchmark::DoNotOptimize((text.*kQuestion)());
}

template <class Contestant, auto kChange>
void changeSize(benchmark::State& state) {
    Contestant text(sizeOf(state));
    double size = 10;
    for (auto _ : state) (text.*kChange)(size = size < 20 ? size + 1 : 10);
}

template <class Contestant>
void removeAttachments(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            Contestant text(sizeOf(state));
            state.ResumeTiming();
            text.removeAttachments();
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

template <class Contestant>
void addRows(const std::string& name, const std::vector<std::int64_t>& sizes) {
    const auto add = [&](const std::string& job, void (*run)(benchmark::State&)) {
        auto* row = benchmark::RegisterBenchmark((job + "/" + name).c_str(), run);
        for (const std::int64_t size : sizes) row->Arg(size);
        row->Unit(benchmark::kMillisecond);
    };
    add("common attributes", ask<Contestant, &Contestant::commonAttributes>);
    add("ask the whole text", ask<Contestant, &Contestant::askWholeText>);
    add("enlarge all", changeSize<Contestant, &Contestant::enlarge>);
    add("restyle all", changeSize<Contestant, &Contestant::restyle>);
    add("remove attachments", removeAttachments<Contestant>);
    add("write Markdown", ask<Contestant, &Contestant::markdown>);
}

}  // namespace

int main(int argc, char** argv) {
    constexpr std::int64_t k100KB = 100'000;
    constexpr std::int64_t k1MB = 1'000'000;
    constexpr std::int64_t k10MB = 10'000'000;
    addRows<Ours>("QZCore", {k100KB, k1MB, k10MB});
    addRows<QtDocument>("Qt", {k100KB});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
