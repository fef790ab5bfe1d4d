#include "QZCore/codecs/arrays.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

#include "QZCore/foundation/dictionary.h"
#include "support/printing.h"

namespace QZCore {
namespace {

/// An array of values of which some are equal and some of those identical.
Array randomArray(std::mt19937& random) {
    static const Value boxed[] = {Value::boxed(Date{1}), Value::boxed(Date{1})};
    static const Array pool{u"a",         u"a",        u"b",
                            Data(1),      Data(1),     Array(1),
                            Array(1),     Array(2),    Value::mutableArray(Array(1)),
                            Set(),        Set(),       Dictionary(),
                            Dictionary(), 1,           1.0,
                            0.0,          -0.0,        true,
                            Date(),       boxed[0],    boxed[1],
                            Value(),      std::nan("")};
    Array array(random() % 12);
    for (Value& element : array) element = pool[random() % pool.size()];
    return array;
}

using Sameness = bool (*)(const Value&, const Value&);

bool areIdentical(const Value& a, const Value& b) { return a.isIdentical(b); }
bool areEqual(const Value& a, const Value& b) { return a == b; }

bool holds(const Array& array, const Value& value, Sameness same) {
    return std::ranges::any_of(array, [&](const Value& e) { return same(e, value); });
}

Array filtered(const Array& array, const Array& objects, Sameness same, bool keepsWhatIsIn) {
    Array kept;
    for (const Value& element : array) {
        if (holds(objects, element, same) == keepsWhatIsIn) kept.push_back(element);
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
        bool keepsWhatIsIn;
    };
    const Row rows[] = {
        {inPlace<removeIdenticalObjectsInArray>, areIdentical, false},
        {inPlace<removeObjectsNotInArray>, areEqual, true},
        {inPlace<removeIdenticalObjectsNotInArray>, areIdentical, true},
        {arrayByRemovingObjectsInArray, areEqual, false},
        {arrayByRemovingIdenticalObjectsInArray, areIdentical, false},
        {arrayByRemovingIdenticalObjectsNotInArray, areIdentical, true},
    };
    std::mt19937 random(11);
    for (int round = 0; round < 3000; ++round) {
        const Array array = randomArray(random);
        const Array objects = randomArray(random);
        for (const Row& row : rows) {
            REQUIRE(sameElements(row.removed(array, objects),
                                 filtered(array, objects, row.same, row.keepsWhatIsIn)));
        }
        if (objects.empty()) continue;
        REQUIRE(sameElements(arrayByRemovingObject(array, objects[0]),
                             filtered(array, {objects[0]}, areEqual, false)));
        REQUIRE(sameElements(arrayByRemovingIdenticalObject(array, objects[0]),
                             filtered(array, {objects[0]}, areIdentical, false)));
    }
}

TEST_CASE("finding the objects of another array is asking for each of them") {
    std::mt19937 random(11);
    for (int round = 0; round < 3000; ++round) {
        const Array array = randomArray(random);
        const Array objects = randomArray(random);
        const auto isInArray = [&](const Value& object) {
            return holds(array, object, areIdentical);
        };
        REQUIRE(containsAnyObjectsIdenticalTo(array, objects) ==
                std::ranges::any_of(objects, isInArray));
        REQUIRE(containsAllObjectsIdenticalTo(array, objects) ==
                std::ranges::all_of(objects, isInArray));
        std::set<std::size_t> indexes;
        for (const Value& object : objects) {
            REQUIRE(containsObjectIdenticalTo(array, object) == isInArray(object));
            const auto first = std::ranges::find(array, object) - array.begin();
            indexes.insert(static_cast<std::size_t>(first));
        }
        indexes.erase(array.size());  // not found
        REQUIRE(indexesOfObjects(array, objects) ==
                std::vector<std::size_t>(indexes.begin(), indexes.end()));
    }
}

TEST_CASE("an array can be compared with itself") {
    const Value text = u"a";
    const Array before{text, 1, Array(), text, 2.5};
    Array array = before;
    removeObjectsNotInArray(array, array);
    removeIdenticalObjectsNotInArray(array, array);
    CHECK(array == before);
    CHECK(indexesOfObjects(array, array) == std::vector<std::size_t>{0, 1, 2, 4});
    removeIdenticalObjectsInArray(array, array);
    CHECK(array.empty());
}

TEST_CASE("elements go by their class") {
    struct Box final : Object {};
    const Value list = Value::mutableArray({});
    const Value entries = Value::mutableDictionary({});
    const Value box(std::make_shared<const Box>());
    const Value range = Value::boxed(Range());
    const Array all{u"text", Data(),  Date(), URL(), Set(), Array(), Dictionary(),
                    list,    entries, true,   2U,    2.5,   box,     range};
    struct Row {
        ClassTest objectClass;
        std::vector<std::size_t> indexes;  // last first
    };
    const Row rows[] = {
        {isOfClass<String>, {0}},        {isOfClass<Data>, {1}},
        {isOfClass<Date>, {2}},          {isOfClass<URL>, {3}},
        {isOfClass<Set>, {4}},           {isOfClass<Array>, {7, 5}},
        {isOfClass<Dictionary>, {8, 6}}, {isOfClass<int>, {11, 10, 9}},
        {isOfClass<Object>, {13, 12}},   {isOfClass<Box>, {12}},
        {isOfClass<Range>, {13}},        {isOfClass<CodePoint>, {}},
    };
    for (const Row& row : rows) {
        CAPTURE(&row - rows);
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
    insertObjectsFromArray(equal, array, 50);
    removeObjectsNotInArray(equal, array);
    CHECK(equal.size() == 2 * kCount);
    removeIdenticalObjectsNotInArray(equal, array);
    CHECK(equal == array);
    removeIdenticalObjectsInArray(equal, array);
    CHECK(equal.empty());
}

}  // namespace QZCore
