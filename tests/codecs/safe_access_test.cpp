#include <cstdint>
#include <random>

#include "QZCore/codecs/arrays.h"
#include "support/log_capture.h"
#include "support/printing.h"

namespace QZCore {
namespace {

/// Two lines, the second with the functions that led to the call; or none.
void checkLines(const std::vector<String>& lines, StringView call) {
    if (call.empty()) {
        CHECK(lines.empty());
        return;
    }
    REQUIRE(lines.size() == 2);
    CHECK(lines[0] == u"Attempting to call " + String(call));
    CHECK(lines[1].starts_with(u"Stack trace: codecs_test"));
}

void removeRange(Array& array, std::size_t location, std::size_t length) {
    array = arrayByRemovingObjectsInRange(array, {location, length});
}

}  // namespace

TEST_CASE("safe operations do what the index allows, or log and change nothing") {
    constexpr StringView kNoObject = u"insertObject:atIndex with a nil object";
    struct Row {
        void (*call)(Array& array);
        Array result;
        StringView mistake;
    };
    const Row rows[] = {
        {[](Array& a) { safeInsertObject(a, 7, 1); }, {1, 7, 2}, u""},
        {[](Array& a) { safeInsertObject(a, 7, 2); }, {1, 2, 7}, u""},
        {[](Array& a) { safeInsertObject(a, 7, 3); }, {}, u"insertObject:atIndex:3 with count:2"},
        {[](Array& a) { safeInsertObject(a, Value(), 9); }, {}, kNoObject},
        {[](Array& a) { safeReplaceObjectAtIndex(a, 1, 7); }, {1, 7}, u""},
        {[](Array& a) { safeReplaceObjectAtIndex(a, 2, 7); },
         {},
         u"replaceObjectAtIndex:2 with count:2"},
        {[](Array& a) { safeReplaceObjectAtIndex(a, 9, Value()); },
         {},
         u"replaceObjectAtIndex with a nil object"},
        {[](Array& a) { safeRemoveObjectAtIndex(a, 0); }, {2}, u""},
        {[](Array& a) { safeRemoveObjectAtIndex(a, SIZE_MAX); },
         {},
         u"removeObjectAtIndex:18446744073709551615 with count:2"},
        {[](Array& a) { safeExchangeObjectAtIndex(a, 0, 1); }, {2, 1}, u""},
        {[](Array& a) { safeExchangeObjectAtIndex(a, 1, 1); }, {1, 2}, u""},
        {[](Array& a) { safeExchangeObjectAtIndex(a, 0, 2); },
         {},
         u"exchangeObjectAtIndex:0 withObjectAtIndex:2 with count:2"},
        {[](Array& a) { safeExchangeObjectAtIndex(a, 2, 0); },
         {},
         u"exchangeObjectAtIndex:2 withObjectAtIndex:0 with count:2"},
        {[](Array& a) { removeRange(a, 1, 1); }, {1}, u""},
        {[](Array& a) { removeRange(a, 2, 0); }, {1, 2}, u""},
        {[](Array& a) { removeRange(a, 1, 2); }, {}, u"removeObjectsInRange:{1, 2} with count:2"},
        {[](Array& a) { removeRange(a, 1, SIZE_MAX); },
         {},
         u"removeObjectsInRange:{1, 18446744073709551615} with count:2"},
        {[](Array& a) { push(a, 7); }, {1, 2, 7}, u""},
        {[](Array& a) { push(a, Value()); }, {}, kNoObject},
    };
    for (const Row& row : rows) {
        const testing::LogCapture log;
        Array array{1, 2};
        row.call(array);
        CAPTURE(&row - rows);
        CHECK(array == (row.mistake.empty() ? row.result : Array{1, 2}));
        checkLines(log.lines(), row.mistake);
    }
}

TEST_CASE("an element is read, or absent and logged") {
    const testing::LogCapture log;
    CHECK(safeObjectAtIndex({1, 2}, 1) == Value(2));
    CHECK(log.lines().empty());
    CHECK(safeObjectAtIndex({1, 2}, 2).isAbsent());
    checkLines(log.lines(), u"objectAtIndex:2 with count:2");
}

TEST_CASE("inserting an array does what inserting its objects one by one does") {
    std::mt19937 random(5);
    for (int round = 0; round < 300; ++round) {
        Array expected(random() % 6, 0);
        Array objects(random() % 8);
        for (Value& object : objects) object = random() % 4 == 0 ? Value() : Value(random());
        Array array = expected;
        const std::size_t index = random() % 8;

        const testing::LogCapture log;
        for (std::size_t i = 0; i < objects.size(); ++i) {
            safeInsertObject(expected, objects[i], index + i);
        }
        const std::size_t count = log.lines().size();
        insertObjectsFromArray(array, objects, index);
        const std::vector<String> lines = log.lines();
        REQUIRE(array == expected);
        REQUIRE(lines.size() == 2 * count);
        for (std::size_t i = 0; i < count; i += 2) REQUIRE(lines[i] == lines[count + i]);
    }
    Array doubled{1, 2};
    insertObjectsFromArray(doubled, doubled, 1);
    CHECK(doubled == Array{1, 1, 2, 2});
    const testing::LogCapture log;
    insertObjectsFromArray(doubled, {3, 4, 5}, SIZE_MAX);
    CHECK(doubled.size() == 4);
}

TEST_CASE("the last element is the top of the stack") {
    Array stack;
    CHECK(peek(stack).isAbsent());
    CHECK(pop(stack).isAbsent());
    push(stack, 1);
    push(stack, 2);
    CHECK(peek(stack) == Value(2));
    CHECK(pop(stack) == Value(2));
    CHECK(pop(stack) == Value(1));
    CHECK(stack.empty());
}

}  // namespace QZCore
