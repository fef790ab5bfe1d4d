// Reading and printing colour strings, beside Qt's and the C library's.
#include <benchmark/benchmark.h>

#include <QColor>
#include <array>
#include <cmath>
#include <cstdio>

#include "QZCore/color.h"

namespace {

constexpr std::size_t kColors = 1000;

/// Strings that both sides read: six hex digits and, every fourth, a name.
std::vector<QZCore::String> colorStrings() {
    constexpr std::array kNames{u"red", u"purple", u"black", u"yellow", u"Magenta"};
    std::vector<QZCore::String> strings;
    for (std::size_t i = 0; i < kColors; ++i) {
        const auto color = QZCore::Color::colorWithCalibrated255Red(
            static_cast<double>(i % 256), static_cast<double>(i * 7 % 256), 77);
        strings.push_back(i % 4 == 0 ? kNames[i / 4 % kNames.size()] : color.stringForColor());
    }
    return strings;
}

/// Colours of which every fourth is translucent and every eighth has a name.
std::vector<QZCore::Color> colors() {
    std::vector<QZCore::Color> made;
    for (std::size_t i = 0; i < kColors; ++i) {
        const double alpha = i % 4 == 0 ? static_cast<double>(i % 100) / 101 : 1;
        made.push_back(QZCore::Color::colorWithCalibrated255Red(
            static_cast<double>(i % 256), static_cast<double>(i * 7 % 256),
            static_cast<double>(i % 90), alpha));
        if (i % 8 == 1) made.back() = QZCore::Color::colorWithCalibratedRed(0.6, 0.4, 0.2, 1);
    }
    return made;
}

QString printedByC(const QZCore::Color& color) {
    const auto steps = [](double component) {
        return static_cast<int>(std::rint(component * 255));
    };
    std::array<char, 64> text;
    std::snprintf(text.data(), text.size(),
                  color.alphaComponent() == 1 ? "#%02x%02x%02x" : "rgb(%d,%d,%d,%f)",
                  steps(color.redComponent()), steps(color.greenComponent()),
                  steps(color.blueComponent()), color.alphaComponent());
    return QString::fromLatin1(text.data());
}

template <class Items, class Work>
void measure(benchmark::State& state, const Items& items, Work work) {
    for (auto _ : state) {
        for (const auto& item : items) benchmark::DoNotOptimize(work(item));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items.size()));
}

void read(benchmark::State& state) {
    measure(state, colorStrings(),
            [](const QZCore::String& text) { return QZCore::Color::colorForString(text); });
}
BENCHMARK(read)->Name("colorForString/QZCore");

void readByQt(benchmark::State& state) {
    std::vector<QString> strings;
    for (const QZCore::String& text : colorStrings()) {
        strings.push_back(QString::fromStdU16String(text));
    }
    measure(state, strings, [](const QString& text) { return QColor(text); });
}
BENCHMARK(readByQt)->Name("colorForString/Qt");

void print(benchmark::State& state) {
    measure(state, colors(), [](const QZCore::Color& color) { return color.stringForColor(); });
}
BENCHMARK(print)->Name("stringForColor/QZCore");

void printByC(benchmark::State& state) { measure(state, colors(), printedByC); }
BENCHMARK(printByC)->Name("stringForColor/snprintf");

void printByQt(benchmark::State& state) {
    std::vector<QColor> qColors;
    for (const QZCore::Color& color : colors()) {
        qColors.push_back(QColor::fromRgbF(
            static_cast<float>(color.redComponent()), static_cast<float>(color.greenComponent()),
            static_cast<float>(color.blueComponent()), static_cast<float>(color.alphaComponent())));
    }
    measure(state, qColors, [](const QColor& color) {
        return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
    });
}
BENCHMARK(printByQt)->Name("stringForColor/Qt");

}  // namespace
