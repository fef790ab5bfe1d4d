// Property lists in XML, beside libplist.
#include <benchmark/benchmark.h>
#include <plist/plist.h>

#include <cstdlib>
#include <memory>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/property_list.h"

using namespace QZCore;

namespace {

/// A list of `count` records, a hundred and eighty bytes each.
Value records(std::int64_t count) {
    Dictionary made;
    for (std::int64_t i = 0; i < count; ++i) {
        made.setObject(Dictionary{{u"name", u"some words <here>"},
                                  {u"number", i},
                                  {u"real", static_cast<double>(i) * 0.1}},
                       u"record " + integerString(i));
    }
    return made;
}

Data recordsAsXml(std::int64_t count) { return *writePropertyList(records(count)).data; }

struct PlistRelease {
    void operator()(void* node) const { plist_free(node); }
};
using Plist = std::unique_ptr<void, PlistRelease>;

Plist readWithLibplist(const Data& xml) {
    plist_t node = nullptr;
    plist_from_xml(reinterpret_cast<const char*>(xml.data()),
                   static_cast<std::uint32_t>(xml.size()), &node);
    return Plist(node);
}

template <class Read>
void readRecords(benchmark::State& state, Read read) {
    const Data xml = recordsAsXml(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(read(xml));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(xml.size()));
}

void reading(benchmark::State& state) {
    readRecords(state, [](const Data& xml) { return readPropertyList(xml).value; });
}
BENCHMARK(reading)->Name("readXml/QZCore")->RangeMultiplier(16)->Range(16, 1 << 16);

void readingWithLibplist(benchmark::State& state) { readRecords(state, readWithLibplist); }
BENCHMARK(readingWithLibplist)->Name("readXml/libplist")->RangeMultiplier(16)->Range(16, 1 << 16);

void writing(benchmark::State& state) {
    const Value list = records(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(writePropertyList(list));
}
BENCHMARK(writing)->Name("writeXml/QZCore")->RangeMultiplier(16)->Range(16, 1 << 16);

void writingWithLibplist(benchmark::State& state) {
    const Plist list = readWithLibplist(recordsAsXml(state.range(0)));
    for (auto _ : state) {
        char* xml = nullptr;
        std::uint32_t size = 0;
        plist_to_xml(list.get(), &xml, &size);
        benchmark::DoNotOptimize(xml);
        std::free(xml);
    }
}
BENCHMARK(writingWithLibplist)->Name("writeXml/libplist")->RangeMultiplier(16)->Range(16, 1 << 16);

}  // namespace
