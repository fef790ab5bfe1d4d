#include "QZCore/codecs/arrays.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "QZCore/foundation/dictionary.h"
#include "support/printing.h"

namespace QZCore {
namespace {

/// Arrays of values of which some are equal and some of those identical.
class RandomArrays {
public:
    Array next() {
        Array array(random_() % 12);
        for (Value& element : array) element = pool_[random_() % pool_.size()];
        return array;
    }

private:
    const Array pool_{u"a",     u"a",         u"b",
                      Data{1},  Data{1},      Array{1},
                      Array{1}, Array{2},     Value::mutableArray({1}),
                      Set{1},   Set{1},       Dictionary{{u"a", 1}},
                      1,        1.0,          Dictionary{{u"a", 1}},
                      0.0,      -0.0,         Value::boxed(Date{1}),
                      true,     Date{0},      Value::boxed(Date{1}),
                      Value(),  std::nan(""), Date{std::nan("")}};
    std::mt19937 random_{11};
};

using Sameness = bool (*)(const Value&, const Value&);

bool areIdentical(const Value& a, const Value& b) { return a.isIdentical(b); }
bool areEqual(const Value& a, const Value& b) { return a == b; }

bool holds(const Array& array, const Value& value, Sameness same) {
    return std::ranges::any_of(array, [&](const Value& e) { return same(e, value); });
}

enum class Keeps { WhatIsIn, WhatIsNotIn };

Array filtered(const Array& array, const Array& objects, Sameness same, Keeps keeps) {
    Array kept;
    for (const Value& element : array) {
        if (holds(objects, element, same) == (keeps == Keeps::WhatIsIn)) kept.push_back(element);
    }
    return kept;
}

bool sameElements(const Array& a, const Array& b) {
    return std::ranges::equal(a, b, [](const Value& x, const Value& y) {
        return x.isIdentical(y) || (x.kind() == y.kind() && x != x);
    });
}

template <void (*kRemove)(Array&, const Array&)>
Array inPlace(const Array& array, const Array& objects) {
    Array changed = array;
    kRemove(changed, objects);
    return changed;
}

}  // namespace

TEST_CASE("removal by another array keeps what asking for each element keeps") {
    struct Row {
        Array (*removed)(const Array& array, const Array& objects);
        Sameness same;
        Keeps keeps;
    };
    const Row rows[] = {
        {inPlace<removeIdenticalObjectsInArray>, areIdentical, Keeps::WhatIsNotIn},
        {inPlace<removeObjectsNotInArray>, areEqual, Keeps::WhatIsIn},
        {inPlace<removeIdenticalObjectsNotInArray>, areIdentical, Keeps::WhatIsIn},
        {arrayByRemovingObjectsInArray, areEqual, Keeps::WhatIsNotIn},
        {arrayByRemovingIdenticalObjectsInArray, areIdentical, Keeps::WhatIsNotIn},
        {arrayByRemovingIdenticalObjectsNotInArray, areIdentical, Keeps::WhatIsIn},
    };
    RandomArrays random;
    for (int round = 0; round < 3000; ++round) {
        const Array array = random.next();
        const Array objects = random.next();
        for (const Row& row : rows) {
            REQUIRE(sameElements(row.removed(array, objects),
                                 filtered(array, objects, row.same, row.keeps)));
        }
        if (objects.empty()) continue;
        REQUIRE(sameElements(arrayByRemovingObject(array, objects[0]),
                             filtered(array, {objects[0]}, areEqual, Keeps::WhatIsNotIn)));
        REQUIRE(sameElements(arrayByRemovingIdenticalObject(array, objects[0]),
                             filtered(array, {objects[0]}, areIdentical, Keeps::WhatIsNotIn)));
    }
}

TEST_CASE("finding the objects of another array is asking for each of them") {
    RandomArrays random;
    for (int round = 0; round < 3000; ++round) {
        const Array array = random.next();
        const Array objects = random.next();
        const auto isInArray = [&](const Value& object) {
            return holds(array, object, areIdentical);
        };
        REQUIRE(containsAnyObjectsIdenticalTo(array, objects) ==
                std::ranges::any_of(objects, isInArray));
        REQUIRE(containsAllObjectsIdenticalTo(array, objects) ==
                std::ranges::all_of(objects, isInArray));
        Set indexes;
        for (const Value& object : objects) {
            REQUIRE(containsObjectIdenticalTo(array, object) == isInArray(object));
            const auto first = std::ranges::find(array, object);
            if (first != array.end()) indexes.add(static_cast<int>(first - array.begin()));
        }
        const auto found = indexesOfObjects(array, objects);
        REQUIRE(std::ranges::is_sorted(found));
        REQUIRE(Array(found.begin(), found.end()).size() == indexes.count());
        for (const std::size_t index : found) REQUIRE(indexes.contains(index));
    }
}

TEST_CASE("an array can be compared with itself") {
    const Value text = u"a";
    Array array{text, 1, Array{1}, text, 2.5};
    const Array before = array;
    removeObjectsNotInArray(array, array);
    removeIdenticalObjectsNotInArray(array, array);
    CHECK(array == before);
    CHECK(containsAllObjectsIdenticalTo(array, array));
    CHECK(indexesOfObjects(array, array) == std::vector<std::size_t>{0, 1, 2, 4});
    removeIdenticalObjectsInArray(array, array);
    CHECK(array.empty());
}

TEST_CASE("elements go by their class") {
    struct Box final : Object {};
    const Array all{u"text",
                    Data{1},
                    Date{1},
                    Array{1},
                    URL{u"a:b"},
                    Value::mutableArray({2}),
                    Set{1},
                    Dictionary(),
                    Value::mutableDictionary({}),
                    true,
                    1,
                    2U,
                    2.5,
                    Value(std::make_shared<const Box>()),
                    Value::boxed(Range{1, 2})};
    struct Row {
        const char* why;
        ClassTest objectClass;
        std::vector<std::size_t> indexes;
    };
    const Row rows[] = {
        {"strings", isOfClass<String>, {0}},
        {"data", isOfClass<Data>, {1}},
        {"dates", isOfClass<Date>, {2}},
        {"arrays, mutable ones too", isOfClass<Array>, {5, 3}},
        {"URLs", isOfClass<URL>, {4}},
        {"sets", isOfClass<Set>, {6}},
        {"dictionaries, mutable ones too", isOfClass<Dictionary>, {8, 7}},
        {"numbers of any kind", isOfClass<int>, {12, 11, 10, 9}},
        {"objects of any type", isOfClass<Object>, {14, 13}},
        {"objects of one type", isOfClass<Box>, {13}},
        {"boxed values", isOfClass<Range>, {14}},
        {"boxed values of no element", isOfClass<CodePoint>, {}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        Array expected = all;
        for (const std::size_t index : row.indexes) safeRemoveObjectAtIndex(expected, index);
        Array array = all;
        removeObjectsOfClass(array, row.objectClass);
        CHECK(array == expected);
        CHECK(arrayByRemovingObjectsOfClass(all, row.objectClass) == expected);
    }
}

TEST_CASE("a hundred thousand objects are looked for in as many at once") {
    constexpr int kCount = 100'000;
    Array array;
    Array equal;
    for (int i = 0; i < kCount; ++i) {
        array.push_back(i % 2 == 0 ? Value(integerString(i)) : Value(Array{i, u"row"}));
        equal.push_back(array.back().mutableCopy());
    }
    std::ranges::reverse(equal);
    CHECK(indexesOfObjects(array, equal).size() == kCount);
    CHECK(containsAllObjectsIdenticalTo(array, array));
    CHECK_FALSE(containsAnyObjectsIdenticalTo(array, equal));
    CHECK(arrayByRemovingObjectsInArray(array, equal).empty());
    CHECK(arrayByRemovingIdenticalObjectsInArray(array, equal).size() == kCount);
    insertObjectsFromArray(equal, array, 50);
    CHECK(equal.size() == 2 * kCount);
    removeObjectsNotInArray(equal, array);
    CHECK(equal.size() == 2 * kCount);
    removeIdenticalObjectsNotInArray(equal, array);
    CHECK(equal == array);
    removeIdenticalObjectsInArray(equal, array);
    CHECK(equal.empty());
}

}  // namespace QZCore
