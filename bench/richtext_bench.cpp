// Edits, attribute changes and walks of rich text, beside Qt's documents and
// Pango's attribute lists, which hold no text.
//
// Times are those of one edit, one change or one run, so the exponent of their
// growth is that of a single step.
#include <benchmark/benchmark.h>
#include <pango/pango.h>

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include "QZCore/richtext.h"
#include "heap_meter.h"

namespace {

// ---- The text ---------------------------------------------------------------

/// Units from one bold word to the next.
constexpr std::size_t kSpan = 25;
constexpr QZCore::StringView kSpanText = u"the next **word** is new ";
constexpr std::size_t kSpansPerLine = 8;
constexpr std::size_t kWordStart = 11;
constexpr std::size_t kWordLength = 4;
constexpr std::size_t kMarkerLength = 2;
static_assert(kSpanText.size() == kSpan);

QZCore::String markedText(std::size_t size) {
    QZCore::String text;
    for (std::size_t span = 1; text.size() < size; ++span) {
        text += kSpanText;
        if (span % kSpansPerLine == 0) text.back() = u'\n';
    }
    return text;
}

struct Place {
    std::size_t location;
    std::size_t length;
};

/// Places spread over a text of `size` units.
std::vector<Place> randomPlaces(std::size_t count, std::size_t size) {
    constexpr std::size_t kLongest = 40;
    std::mt19937_64 random;
    std::vector<Place> places(count);
    for (Place& place : places) {
        place = {random() % (size - kLongest), random() % kLongest + 1};
    }
    return places;
}

// ---- Contestants ------------------------------------------------------------

constexpr int kColors = 4;

class Ours {
public:
    explicit Ours(std::size_t size) : text_(markedText(size)) {}

    void makeBold(Place at) { text_.addAttribute(QZCore::NSFontAttributeName, bold_, range(at)); }
    void color(Place at, std::size_t color) {
        text_.addAttribute(QZCore::NSForegroundColorAttributeName, colors_[color % kColors],
                           range(at));
    }
    void insert(std::size_t location) { text_.replaceCharactersInRange({location, 0}, u"more "); }
    void erase(Place at) { text_.deleteCharactersInRange(range(at)); }
    [[nodiscard]] std::size_t walk() const {
        std::size_t sum = 0;
        for (const QZCore::TextRunView run : text_.runs()) {
            sum += run.range.length + (run.attributes.font() != nullptr ? 1 : 0);
        }
        return sum;
    }

private:
    static QZCore::Range range(Place at) { return {at.location, at.length}; }

    static QZCore::Value colorNumber(double number) {
        return QZCore::Value::boxed(
            QZCore::Color::colorWithCalibratedRed(number / kColors, 0.5, 0.5, 1));
    }

    QZCore::RichText text_;
    QZCore::Value bold_ =
        QZCore::Value::boxed(QZCore::Font{u"Sans", u"Sans-Bold", 12, QZCore::kFontBold, 9});
    QZCore::Value colors_[kColors] = {colorNumber(0), colorNumber(1), colorNumber(2),
                                      colorNumber(3)};
};

/// Qt's documents need an application object, without a screen.
void startQt() {
    static int argumentCount = 1;
    static char name[] = "richtext_bench";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    [[maybe_unused]] static auto& application = *new QGuiApplication(argumentCount, arguments);
}

class Qt {
public:
    explicit Qt(std::size_t size) {
        startQt();
        document_ = std::make_unique<QTextDocument>();
        document_->setUndoRedoEnabled(false);
        document_->setPlainText(QString::fromStdU16String(markedText(size)));
        cursor_ = QTextCursor(document_.get());
    }

    void makeBold(Place at) {
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        change(at, bold);
    }
    void color(Place at, std::size_t color) {
        QTextCharFormat colored;
        colored.setForeground(QColor(static_cast<int>(color % kColors) * 60, 128, 128));
        change(at, colored);
    }
    void insert(std::size_t location) {
        cursor_.setPosition(static_cast<int>(location));
        cursor_.insertText(QStringLiteral("more "));
    }
    void erase(Place at) {
        select(at);
        cursor_.removeSelectedText();
    }
    [[nodiscard]] std::size_t walk() const {
        std::size_t sum = 0;
        for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
            for (auto at = block.begin(); !at.atEnd(); ++at) {
                const QTextFragment run = at.fragment();
                sum += static_cast<std::size_t>(run.length()) +
                       (run.charFormat().fontWeight() == QFont::Bold ? 1 : 0);
            }
        }
        return sum;
    }

private:
    void select(Place at) {
        cursor_.setPosition(static_cast<int>(at.location));
        cursor_.setPosition(static_cast<int>(at.location + at.length), QTextCursor::KeepAnchor);
    }
    void change(Place at, const QTextCharFormat& format) {
        select(at);
        cursor_.mergeCharFormat(format);
    }

    std::unique_ptr<QTextDocument> document_;
    QTextCursor cursor_;
};

class Pango {
public:
    explicit Pango(std::size_t) {}

    void makeBold(Place at) { change(at, pango_attr_weight_new(PANGO_WEIGHT_BOLD)); }
    void color(Place at, std::size_t color) {
        change(at,
               pango_attr_foreground_new(static_cast<guint16>(color % kColors * 9999), 9999, 9999));
    }
    void insert(std::size_t location) {
        pango_attr_list_update(list_.get(), static_cast<int>(location), 0, 5);
    }
    void erase(Place at) {
        pango_attr_list_update(list_.get(), static_cast<int>(at.location),
                               static_cast<int>(at.length), 0);
    }
    [[nodiscard]] std::size_t walk() const {
        std::size_t sum = 0;
        PangoAttrIterator* at = pango_attr_list_get_iterator(list_.get());
        do {
            int start = 0;
            int end = 0;
            pango_attr_iterator_range(at, &start, &end);
            sum += static_cast<std::size_t>(end - start) +
                   (pango_attr_iterator_get(at, PANGO_ATTR_WEIGHT) != nullptr ? 1 : 0);
        } while (pango_attr_iterator_next(at) != 0);
        pango_attr_iterator_destroy(at);
        return sum;
    }

private:
    void change(Place at, PangoAttribute* attribute) {
        attribute->start_index = static_cast<guint>(at.location);
        attribute->end_index = static_cast<guint>(at.location + at.length);
        pango_attr_list_change(list_.get(), attribute);
    }

    std::unique_ptr<PangoAttrList, decltype(&pango_attr_list_unref)> list_{pango_attr_list_new(),
                                                                           pango_attr_list_unref};
};

// ---- Jobs -------------------------------------------------------------------

/// A text in which every marked word is bold, markers kept.
template <class Contestant>
Contestant withBoldWords(std::size_t size) {
    Contestant text(size);
    for (std::size_t at = 0; at < size; at += kSpan) text.makeBold({at + kWordStart, kWordLength});
    return text;
}

std::size_t sizeOf(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

/// Times `step(text, index)` for all indices below `count`, on a new text each
/// time; a step is the unit.
template <class MakeText, class Step>
void measureSteps(benchmark::State& state, std::size_t count, MakeText makeText, Step step) {
    while (state.KeepRunningBatch(static_cast<std::int64_t>(count))) {
        state.PauseTiming();
        {
            auto text = makeText();
            state.ResumeTiming();
            for (std::size_t i = 0; i < count; ++i) step(text, i);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

/// What rendering does: each marked word becomes bold and loses its markers,
/// the last first.
template <class Contestant>
void editBackwards(benchmark::State& state) {
    const std::size_t spans = sizeOf(state) / kSpan;
    measureSteps(
        state, spans, [&] { return Contestant(sizeOf(state)); },
        [&](Contestant& text, std::size_t i) {
            const std::size_t word = (spans - 1 - i) * kSpan + kWordStart;
            text.makeBold({word, kWordLength});
            text.erase({word + kWordLength, kMarkerLength});
            text.erase({word - kMarkerLength, kMarkerLength});
        });
}

template <class Contestant, int kSteps>
void editAnywhere(benchmark::State& state) {
    // Half of the size, because the text shrinks.
    const std::vector<Place> places = randomPlaces(kSteps, sizeOf(state) / 2);
    measureSteps(
        state, places.size(), [&] { return withBoldWords<Contestant>(sizeOf(state)); },
        [&](Contestant& text, std::size_t i) {
            if (i % 2 == 0) {
                text.insert(places[i].location);
            } else {
                text.erase({places[i].location, places[i].length / 4 + 1});
            }
        });
}

template <class Contestant, int kSteps>
void colorAnywhere(benchmark::State& state) {
    const std::vector<Place> places = randomPlaces(kSteps, sizeOf(state));
    measureSteps(
        state, places.size(), [&] { return withBoldWords<Contestant>(sizeOf(state)); },
        [&](Contestant& text, std::size_t i) { text.color(places[i], i); });
}

template <class Contestant>
void walk(benchmark::State& state) {
    const auto text = withBoldWords<Contestant>(sizeOf(state));
    const auto runs = static_cast<std::int64_t>(sizeOf(state) / kSpan * 2);
    while (state.KeepRunningBatch(runs)) benchmark::DoNotOptimize(text.walk());
}

template <class Contestant>
void colorAll(benchmark::State& state) {
    auto text = withBoldWords<Contestant>(sizeOf(state));
    std::size_t color = 0;
    for (auto _ : state) text.color({0, sizeOf(state)}, ++color);
}

template <class Contestant>
void formatWords(benchmark::State& state) {
    const std::size_t spans = sizeOf(state) / kSpan;
    measureSteps(
        state, spans, [&] { return Contestant(sizeOf(state)); },
        [&](Contestant& text, std::size_t i) {
            text.makeBold({i * kSpan + kWordStart, kWordLength});
        });
    const auto use = bench::heapUseOf([&] { return withBoldWords<Contestant>(sizeOf(state)); });
    state.counters["bytes_per_unit"] =
        static_cast<double>(use.kept) / static_cast<double>(sizeOf(state));
}

// ---- Cases ------------------------------------------------------------------

constexpr int k100KB = 100'000;
constexpr int k1MB = 1'000'000;
constexpr int k10MB = 10'000'000;
constexpr int kMany = 400'000;
constexpr int kFew = 4'000;

// Ours come first: Qt leaves the upper halves of vector registers in use, which
// slows down whatever the processor does with the lower ones later on. Where a
// peer would take minutes its sizes end early.
BENCHMARK(editBackwards<Ours>)->Name("edit backwards/QZCore")->Arg(k100KB)->Arg(k1MB)->Arg(k10MB);
BENCHMARK(editAnywhere<Ours, kFew>)->Name("edit anywhere/QZCore")->Arg(k100KB)->Arg(k1MB);
BENCHMARK(editAnywhere<Ours, kMany>)->Name("edit anywhere/QZCore")->Arg(k10MB);
BENCHMARK(colorAnywhere<Ours, kFew>)->Name("color anywhere/QZCore")->Arg(k100KB)->Arg(k1MB);
BENCHMARK(colorAnywhere<Ours, kMany>)->Name("color anywhere/QZCore")->Arg(k10MB);
BENCHMARK(walk<Ours>)->Name("walk the runs/QZCore")->Arg(k100KB)->Arg(k1MB)->Arg(k10MB);
BENCHMARK(colorAll<Ours>)->Name("color all/QZCore")->Arg(k100KB)->Arg(k1MB)->Arg(k10MB);
BENCHMARK(formatWords<Ours>)->Name("format words/QZCore")->Arg(k100KB)->Arg(k1MB)->Arg(k10MB);

BENCHMARK(editBackwards<Qt>)->Name("edit backwards/Qt")->Arg(k100KB)->Arg(k1MB)->Arg(k10MB);
BENCHMARK(editBackwards<Pango>)->Name("edit backwards/Pango")->Arg(k100KB);
BENCHMARK(editAnywhere<Qt, kFew>)->Name("edit anywhere/Qt")->Arg(k100KB)->Arg(k1MB)->Arg(k10MB);
BENCHMARK(editAnywhere<Pango, kFew>)->Name("edit anywhere/Pango")->Arg(k100KB);
BENCHMARK(colorAnywhere<Qt, kFew>)->Name("color anywhere/Qt")->Arg(k100KB)->Arg(k1MB)->Arg(k10MB);
BENCHMARK(colorAnywhere<Pango, kFew>)->Name("color anywhere/Pango")->Arg(k100KB);
BENCHMARK(walk<Qt>)->Name("walk the runs/Qt")->Arg(k100KB)->Arg(k1MB)->Arg(k10MB);
BENCHMARK(walk<Pango>)->Name("walk the runs/Pango")->Arg(k100KB)->Arg(k1MB);
BENCHMARK(colorAll<Qt>)->Name("color all/Qt")->Arg(k100KB)->Arg(k1MB)->Arg(k10MB);
BENCHMARK(colorAll<Pango>)->Name("color all/Pango")->Arg(k100KB);
BENCHMARK(formatWords<Qt>)->Name("format words/Qt")->Arg(k100KB)->Arg(k1MB)->Arg(k10MB);
BENCHMARK(formatWords<Pango>)->Name("format words/Pango")->Arg(k100KB);

}  // namespace
