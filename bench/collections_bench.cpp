// Operations on two arrays beside Qt's hashed sets and maps, and beside the loop
// that asks for each object; typed reads and deep copies.
#include <benchmark/benchmark.h>

#include <QHash>
#include <QSet>
#include <QString>
#include <QVariant>
#include <algorithm>
#include <memory>
#include <vector>

#include "QZCore/codecs.h"

using namespace QZCore;

namespace {

String nameOf(std::int64_t number) { return u"element number " + integerString(number); }

Array names(std::int64_t count) {
    Array made;
    for (std::int64_t i = 0; i < count; ++i) made.emplace_back(nameOf(i));
    return made;
}

QStringList qtNames(std::int64_t count) {
    QStringList made;
    for (std::int64_t i = 0; i < count; ++i) made.append(QString::fromStdU16String(nameOf(i)));
    return made;
}

/// The same objects from the last to the first.
template <class List>
List reversed(List list) {
    std::reverse(list.begin(), list.end());
    return list;
}

/// Every other name as a text of its own, then as many that `names` lacks.
Array halfOfNames(std::int64_t count) {
    Array made;
    for (std::int64_t i = 0; i < count; ++i) made.emplace_back(nameOf(2 * i));
    return made;
}

QStringList halfOfQtNames(std::int64_t count) {
    QStringList made;
    for (std::int64_t i = 0; i < count; ++i) made.append(QString::fromStdU16String(nameOf(2 * i)));
    return made;
}

using SharedName = std::shared_ptr<const String>;

std::vector<SharedName> sharedNames(std::int64_t count) {
    std::vector<SharedName> made;
    for (std::int64_t i = 0; i < count; ++i) made.push_back(std::make_shared<String>(nameOf(i)));
    return made;
}

// ---- Whether one array holds all objects of another ----

void containsAll(benchmark::State& state) {
    const Array array = names(state.range(0));
    const Array objects = reversed(array);
    for (auto _ : state) benchmark::DoNotOptimize(containsAllObjectsIdenticalTo(array, objects));
}
BENCHMARK(containsAll)
    ->Name("containsAllIdentical/QZCore")
    ->RangeMultiplier(10)
    ->Range(100, 100'000);

void containsAllWithQt(benchmark::State& state) {
    const auto array = sharedNames(state.range(0));
    const auto objects = reversed(array);
    for (auto _ : state) {
        QSet<const String*> held;
        held.reserve(static_cast<qsizetype>(array.size()));
        for (const SharedName& name : array) held.insert(name.get());
        benchmark::DoNotOptimize(std::ranges::all_of(
            objects, [&](const SharedName& name) { return held.contains(name.get()); }));
    }
}
BENCHMARK(containsAllWithQt)
    ->Name("containsAllIdentical/QSet")
    ->RangeMultiplier(10)
    ->Range(100, 100'000);

void containsAllByLoop(benchmark::State& state) {
    const Array array = names(state.range(0));
    const Array objects = reversed(array);
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::ranges::all_of(objects, [&](const Value& object) {
            return containsObjectIdenticalTo(array, object);
        }));
    }
}
BENCHMARK(containsAllByLoop)
    ->Name("containsAllIdentical/Loop")
    ->RangeMultiplier(10)
    ->Range(100, 10'000);

// ---- Indexes of equal objects ----

void indexes(benchmark::State& state) {
    const Array array = names(state.range(0));
    const Array objects = halfOfNames(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(indexesOfObjects(array, objects));
}
BENCHMARK(indexes)->Name("indexesOfObjects/QZCore")->RangeMultiplier(10)->Range(100, 100'000);

void indexesWithQt(benchmark::State& state) {
    const QStringList array = qtNames(state.range(0));
    const QStringList objects = halfOfQtNames(state.range(0));
    for (auto _ : state) {
        QHash<QString, qsizetype> first;
        first.reserve(array.size());
        for (qsizetype i = array.size(); i-- > 0;) first.insert(array[i], i);
        std::vector<qsizetype> found;
        for (const QString& object : objects) {
            const auto at = first.constFind(object);
            if (at != first.cend()) found.push_back(*at);
        }
        benchmark::DoNotOptimize(found.data());
    }
}
BENCHMARK(indexesWithQt)->Name("indexesOfObjects/QHash")->RangeMultiplier(10)->Range(100, 100'000);

// ---- Removing what another array does not hold ----

void removeOthers(benchmark::State& state) {
    const Array array = names(state.range(0));
    const Array objects = halfOfNames(state.range(0));
    for (auto _ : state) {
        Array kept = array;
        removeObjectsNotInArray(kept, objects);
        benchmark::DoNotOptimize(kept.data());
    }
}
BENCHMARK(removeOthers)
    ->Name("removeObjectsNotInArray/QZCore")
    ->RangeMultiplier(10)
    ->Range(100, 100'000);

void removeOthersWithQt(benchmark::State& state) {
    const QStringList array = qtNames(state.range(0));
    const QStringList objects = halfOfQtNames(state.range(0));
    for (auto _ : state) {
        QStringList kept = array;
        const QSet<QString> held(objects.begin(), objects.end());
        kept.removeIf([&](const QString& name) { return !held.contains(name); });
        benchmark::DoNotOptimize(kept.data());
    }
}
BENCHMARK(removeOthersWithQt)
    ->Name("removeObjectsNotInArray/QSet")
    ->RangeMultiplier(10)
    ->Range(100, 100'000);

// ---- Typed reads ----

constexpr const char16_t* kKeys[] = {u"width", u"height", u"title", u"visible", u"zoom"};

void typedReads(benchmark::State& state) {
    Dictionary dictionary;
    for (const char16_t* key : kKeys) dictionary.setObject(7, key);
    for (auto _ : state) {
        for (const char16_t* key : kKeys) {
            benchmark::DoNotOptimize(intForKey(dictionary, key, 1));
        }
    }
}
BENCHMARK(typedReads)->Name("fiveTypedReads/QZCore");

void typedReadsWithQt(benchmark::State& state) {
    QVariantMap dictionary;
    std::vector<QString> keys;
    for (const char16_t* key : kKeys) {
        keys.push_back(QString::fromUtf16(key));
        dictionary.insert(keys.back(), 7);
    }
    for (auto _ : state) {
        for (const QString& key : keys) {
            benchmark::DoNotOptimize(dictionary.value(key, 1).toInt());
        }
    }
}
BENCHMARK(typedReadsWithQt)->Name("fiveTypedReads/QVariantMap");

// ---- Deep copies ----

void deepCopy(benchmark::State& state) {
    Array rows;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        rows.push_back(Dictionary{{u"number", i}, {u"place", Array{i, 2.5}}, {u"name", nameOf(i)}});
    }
    for (auto _ : state) benchmark::DoNotOptimize(mutableCopyDeepCollectionsOnly(rows));
}
BENCHMARK(deepCopy)
    ->Name("mutableCopyDeepCollectionsOnly/QZCore")
    ->RangeMultiplier(10)
    ->Range(100, 100'000);

}  // namespace
