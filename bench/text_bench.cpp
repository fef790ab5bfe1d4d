// The border between UTF-8 and UTF-16, beside Qt's.
#include <benchmark/benchmark.h>

#include <QString>

#include "QZCore/foundation/text.h"

namespace {

/// Prose of `size` bytes: mostly ASCII, with letters of two, three and four
/// bytes in between.
std::string prose(std::int64_t size) {
    std::string text;
    while (text.size() < static_cast<std::size_t>(size)) {
        text +=
            "The caf\xC3\xA9 opens at nine \xE2\x80\x93 bring the notes \xF0\x9F\x93\x9D along. ";
    }
    return text;
}

template <class Convert>
void convertProse(benchmark::State& state, Convert convert) {
    const std::string text = prose(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(convert(text));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void fromUtf8(benchmark::State& state) {
    convertProse(state, [](const std::string& text) { return QZCore::fromUTF8(text); });
}
BENCHMARK(fromUtf8)->Name("fromUTF8/QZCore")->RangeMultiplier(32)->Range(1 << 10, 1 << 20);

void fromUtf8WithQt(benchmark::State& state) {
    convertProse(state, [](const std::string& text) { return QString::fromUtf8(text.c_str()); });
}
BENCHMARK(fromUtf8WithQt)->Name("fromUTF8/Qt")->RangeMultiplier(32)->Range(1 << 10, 1 << 20);

}  // namespace
