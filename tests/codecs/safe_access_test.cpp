#include <cstdint>
#include <random>

#include "QZCore/codecs/arrays.h"
#include "support/attempts.h"
#include "support/printing.h"

namespace QZCore {
namespace {

void removeRange(Array& array, std::size_t location, std::size_t length) {
    array = arrayByRemovingObjectsInRange(array, {location, length});
}

}  // namespace

TEST_CASE("safe operations do what the index allows, or log and change nothing") {
    struct Row {
        void (*call)(Array& array);
        StringView attempt;
        Array result = {1, 2};
    };
    const Row rows[] = {
        {[](Array& a) { safeInsertObject(a, 7, 1); }, u"", {1, 7, 2}},
        {[](Array& a) { safeInsertObject(a, 7, 2); }, u"", {1, 2, 7}},
        {[](Array& a) { safeInsertObject(a, 7, 3); }, u"insertObject:atIndex:3 with count:2"},
        {[](Array& a) { safeInsertObject(a, Value(), 9); },
         u"insertObject:atIndex with a nil object"},
        {[](Array& a) { safeReplaceObjectAtIndex(a, 1, 7); }, u"", {1, 7}},
        {[](Array& a) { safeReplaceObjectAtIndex(a, 2, 7); },
         u"replaceObjectAtIndex:2 with count:2"},
        {[](Array& a) { safeReplaceObjectAtIndex(a, 9, Value()); },
         u"replaceObjectAtIndex with a nil object"},
        {[](Array& a) { safeRemoveObjectAtIndex(a, 0); }, u"", {2}},
        {[](Array& a) { safeRemoveObjectAtIndex(a, SIZE_MAX); },
         u"removeObjectAtIndex:18446744073709551615 with count:2"},
        {[](Array& a) { safeExchangeObjectAtIndex(a, 0, 1); }, u"", {2, 1}},
        {[](Array& a) { safeExchangeObjectAtIndex(a, 0, 2); },
         u"exchangeObjectAtIndex:0 withObjectAtIndex:2 with count:2"},
        {[](Array& a) { safeExchangeObjectAtIndex(a, 2, 0); },
         u"exchangeObjectAtIndex:2 withObjectAtIndex:0 with count:2"},
        {[](Array& a) { removeRange(a, 1, 1); }, u"", {1}},
        {[](Array& a) { removeRange(a, 2, 0); }, u"", {1, 2}},
        {[](Array& a) { removeRange(a, 1, SIZE_MAX); },
         u"removeObjectsInRange:{1, 18446744073709551615} with count:2"},
        {[](Array& a) { push(a, 7); }, u"", {1, 2, 7}},
        {[](Array& a) { push(a, Value()); }, u"insertObject:atIndex with a nil object"},
        {[](Array& a) { a = {safeObjectAtIndex(a, 1)}; }, u"", {2}},
        {[](Array& a) { CHECK(safeObjectAtIndex(a, 2).isAbsent()); },
         u"objectAtIndex:2 with count:2"},
    };
    for (const Row& row : rows) {
        CAPTURE(&row - rows);
        const testing::LogCapture log;
        Array array{1, 2};
        row.call(array);
        CHECK(array == row.result);
        std::vector<String> expected;
        if (!row.attempt.empty()) expected.emplace_back(row.attempt);
        CHECK(testing::attempts(log) == expected);
    }
}

TEST_CASE("inserting an array does what inserting its objects one by one does") {
    std::mt19937 random(5);
    for (int round = 0; round < 300; ++round) {
        Array expected(random() % 6, 0);
        Array objects(random() % 8);
        for (Value& object : objects) object = random() % 4 == 0 ? Value() : Value(random());
        Array array = expected;
        const std::size_t index = random() % 8;
        const testing::LogCapture oneByOne;
        for (std::size_t i = 0; i < objects.size(); ++i) {
            safeInsertObject(expected, objects[i], index + i);
        }
        const testing::LogCapture atOnce;
        insertObjectsFromArray(array, objects, index);
        REQUIRE(array == expected);
        REQUIRE(testing::attempts(atOnce) == testing::attempts(oneByOne));
    }
    Array doubled{1, 2};
    insertObjectsFromArray(doubled, doubled, 1);
    CHECK(doubled == Array{1, 1, 2, 2});
    const testing::LogCapture log;
    insertObjectsFromArray(doubled, {3, 4, 5}, SIZE_MAX);
    CHECK(doubled.size() == 4);
}

TEST_CASE("the last element is the top of the stack") {
    Array stack{1, 2};
    CHECK(peek(stack) == Value(2));
    CHECK(pop(stack) == Value(2));
    CHECK(pop(stack) == Value(1));
    CHECK(pop(stack).isAbsent());
    CHECK(peek(stack).isAbsent());
}

}  // namespace QZCore
