// Detection and rendering of Markdown, beside Qt's reader, which makes rich text
// too, and md4c, which makes HTML.
#include <benchmark/benchmark.h>
#include <md4c-html.h>

#include <QGuiApplication>
#include <QTextDocument>
#include <array>
#include <functional>
#include <memory>
#include <random>
#include <string>

#include "QZCore/markdown.h"
#include "QZCore/platform/fonts.h"
#include "heap_meter.h"

namespace {

// ---- Texts ------------------------------------------------------------------

/// Documentation as people write it: a span of markup about every 40 units.
class Documentation {
public:
    std::string ofSize(std::size_t size) {
        while (text_.size() < size) addSection();
        text_.resize(size);
        return std::move(text_);
    }

private:
    std::size_t upTo(std::size_t most) { return random_() % most + 1; }

    void addWords(std::size_t count) {
        constexpr std::array kWords{"the",   "page",  "keeps", "every", "figure", "where",
                                    "it",    "was",   "drawn", "and",   "notes",  "of",
                                    "lines", "board", "moves", "with",  "its",    "arrows"};
        for (std::size_t i = 0; i < count; ++i) {
            if (i > 0) text_ += ' ';
            text_ += kWords[random_() % kWords.size()];
        }
    }

    void addMarked(std::string_view marker) {
        text_ += marker;
        addWords(upTo(3));
        text_ += marker;
    }

    void addLink() {
        text_ += '[';
        addWords(upTo(3));
        text_ += "](https://example.org/page/" + std::to_string(++links_) + ')';
    }

    void addSpan() {
        constexpr std::array kMarkers{"**", "_",  "`", "*",  "`", "**", "***",
                                      "`",  "~~", "_", "==", "`", "__"};
        const std::size_t kind = random_() % (kMarkers.size() + 3);
        if (kind < kMarkers.size()) {
            addMarked(kMarkers[kind]);
        } else {
            addLink();
        }
    }

    void addProse(std::size_t spans) {
        for (std::size_t i = 0; i < spans; ++i) {
            addWords(upTo(8));
            text_ += ' ';
            addSpan();
            text_ += random_() % 4 == 0 ? ", " : " ";
        }
        addWords(2);
        text_ += ".\n";
    }

    void addCode() {
        text_ += "```\n";
        for (std::size_t line = upTo(8); line > 0; --line) {
            text_ += "for (item *p = list; p; p = p->next) visit(p, *depth);\n";
        }
        text_ += "```\n\n";
    }

    void addSection() {
        text_ += std::string(upTo(4), '#') + ' ';
        addWords(4);
        text_ += "\n\n";
        for (std::size_t paragraph = upTo(4); paragraph > 0; --paragraph) {
            addProse(upTo(10));
            text_ += '\n';
        }
        for (std::size_t item = upTo(6); item > 0; --item) {
            text_ += "- ";
            addProse(1);
        }
        text_ += "\n> ";
        addProse(2);
        text_ += '\n';
        if (random_() % 3 == 0) addCode();
    }

    std::mt19937 random_;
    std::string text_;
    int links_ = 0;
};

std::string documentation(std::size_t size) { return Documentation().ofSize(size); }

std::string repeated(std::string_view part, std::size_t size) {
    std::string text;
    while (text.size() < size) text += part;
    return text;
}

std::string prose(std::size_t size) {
    return repeated("The page keeps every figure where it was drawn, and notes of it.\n", size);
}

std::string fencedBlock(std::size_t size) { return "```\n" + prose(size) + "```\n"; }

std::string paragraph(std::size_t size) {
    return repeated("The page *keeps* every figure where it was drawn. ", size);
}

std::string list(std::size_t size) { return repeated("- one **bold** item of many\n", size); }

/// Runs of one, two, three and more backticks.
std::string growingBackticks(std::size_t size) {
    std::string text;
    for (std::size_t length = 1; text.size() < size; ++length) {
        text += std::string(length, '`') + ' ';
    }
    return text;
}

// ---- Contestants ------------------------------------------------------------

struct MadeUpFonts {
    static auto catalog() { return QZCore::makeInMemoryFontCatalog(); }
};
struct MachineFonts {
    static std::shared_ptr<const QZCore::FontCatalog> catalog() { return nullptr; }
};

template <class Fonts>
struct Rendering {
    using Text = QZCore::String;
    static Text prepared(const std::string& utf8) {
        QZCore::setSharedFontCatalog(Fonts::catalog());
        return QZCore::fromUTF8(utf8);
    }
    static QZCore::RichText work(const Text& text) {
        const QZCore::Font font = QZCore::sharedFontCatalog()->userFont(12);
        return QZCore::attributedStringWithMarkdown(
            text, {{QZCore::NSFontAttributeName, QZCore::Value::boxed(font)}});
    }
};

struct Detection {
    using Text = QZCore::String;
    static Text prepared(const std::string& utf8) { return QZCore::fromUTF8(utf8); }
    static bool work(const Text& text) { return QZCore::containsMarkdown(text); }
};

struct Md4c {
    using Text = std::string;
    static Text prepared(const std::string& utf8) { return utf8; }
    static std::string work(const Text& text) {
        std::string html;
        const auto append = [](const MD_CHAR* part, MD_SIZE size, void* to) {
            static_cast<std::string*>(to)->append(part, size);
        };
        md_html(text.data(), static_cast<MD_SIZE>(text.size()), append, &html, MD_DIALECT_GITHUB,
                0);
        return html;
    }
};

/// Qt's documents need an application object, without a screen.
void startQt() {
    static int argumentCount = 1;
    static char name[] = "markdown_bench";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    [[maybe_unused]] static auto& application = *new QGuiApplication(argumentCount, arguments);
}

struct Qt {
    using Text = QString;
    static Text prepared(const std::string& utf8) {
        startQt();
        return QString::fromStdString(utf8);
    }
    static auto work(const Text& text) {
        auto document = std::make_unique<QTextDocument>();
        document->setMarkdown(text);
        return document;
    }
};

template <class Contestant>
void run(benchmark::State& state, const std::string& utf8) {
    const typename Contestant::Text text = Contestant::prepared(utf8);
    for (auto _ : state) benchmark::DoNotOptimize(Contestant::work(text));
    const auto use = bench::heapUseOf([&] { return Contestant::work(text); });
    state.counters["bytes_per_unit"] =
        static_cast<double>(use.peak) / static_cast<double>(text.size());
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(utf8.size()));
}

// ---- Cases ------------------------------------------------------------------

using MakeText = std::function<std::string(std::size_t size)>;

template <class Contestant>
void add(const std::string& job, const char* contestant, std::size_t size, const MakeText& make) {
    benchmark::RegisterBenchmark(
        (job + '/' + contestant + '/' + std::to_string(size)).c_str(),
        [=](benchmark::State& state) { run<Contestant>(state, make(size)); })
        ->Unit(benchmark::kMicrosecond);
}

constexpr std::size_t kSizes[] = {10'000, 100'000, 1'000'000, 10'000'000};
constexpr std::size_t kMostForQt = 1'000'000;  // beyond, minutes

void addDetection() {
    for (const std::size_t size : kSizes) {
        add<Detection>("detect in documentation", "QZCore", size, documentation);
        add<Detection>("detect in prose", "QZCore", size, prose);
    }
}

void addRendering() {
    for (const std::size_t size : kSizes) {
        add<Rendering<MadeUpFonts>>("render", "QZCore", size, documentation);
        add<Md4c>("render", "md4c", size, documentation);
        if (size <= kMostForQt) add<Qt>("render", "Qt", size, documentation);
        add<Rendering<MachineFonts>>("render in installed fonts", "QZCore", size, documentation);
        add<Md4c>("render in installed fonts", "md4c", size, documentation);
    }
}

void addLongConstructs() {
    struct Row {
        const char* job;
        MakeText make;
        std::size_t mostForQt;
    };
    const Row rows[] = {
        {"one fenced block", fencedBlock, 1'000'000},
        {"one paragraph", paragraph, 100'000},
        {"one list", list, 100'000},
    };
    for (const Row& row : rows) {
        for (const std::size_t size : {100'000, 1'000'000, 10'000'000}) {
            add<Rendering<MadeUpFonts>>(row.job, "QZCore", size, row.make);
            add<Md4c>(row.job, "md4c", size, row.make);
            if (size <= row.mostForQt) add<Qt>(row.job, "Qt", size, row.make);
        }
    }
}

/// Texts in which most markup leads nowhere, or in which each bit of it is
/// short.
void addHostile() {
    struct Row {
        std::string part;
        std::size_t mostForQt;  // repetitions that take it seconds at most
    };
    const Row rows[] = {
        {"*a ", 100'000},  {"_a ", 100'000},  {"**a ", 100'000},     {"***a ", 100'000},
        {"__a ", 100'000}, {"~~a ", 100'000}, {"==a ", 100'000},     {"^^a ", 100'000},
        {"::a ", 100'000}, {"[", 100'000},    {"[a](b", 100'000},    {"\\*", 10'000},
        {"``a` ", 1'000},  {"> a\n", 10'000}, {"- a b c\n", 10'000},
    };
    for (const Row& row : rows) {
        const std::string job = "hostile " + row.part.substr(0, row.part.find('\n'));
        const MakeText make = [part = row.part](std::size_t size) { return repeated(part, size); };
        for (const std::size_t repetitions : {1'000, 10'000, 100'000}) {
            const std::size_t size = repetitions * row.part.size();
            add<Rendering<MadeUpFonts>>(job, "QZCore", size, make);
            add<Md4c>(job, "md4c", size, make);
            if (repetitions <= row.mostForQt) add<Qt>(job, "Qt", size, make);
        }
    }
    for (const std::size_t size : {1'000, 10'000, 100'000}) {
        add<Rendering<MadeUpFonts>>("hostile growing backticks", "QZCore", size, growingBackticks);
        add<Md4c>("hostile growing backticks", "md4c", size, growingBackticks);
        add<Qt>("hostile growing backticks", "Qt", size, growingBackticks);
    }
}

[[maybe_unused]] const bool kAdded = [] {
    addDetection();
    addRendering();
    addLongConstructs();
    addHostile();
    return true;
}();

}  // namespace
