#include "QZCore/foundation/value.h"

#include <cmath>
#include <limits>

#include "QZCore/foundation/dictionary.h"
#include "support/printing.h"
#include "support/random_value.h"
#include "support/small_stack.h"

namespace QZCore {
namespace {

constexpr auto kLargestSigned = std::numeric_limits<std::int64_t>::max();
constexpr auto kLargestUnsigned = std::numeric_limits<std::uint64_t>::max();

Value nestedArrays(int levels) {
    Value value = 1;
    for (int i = 0; i < levels; ++i) value = Array{value};
    return value;
}

Value nestedDictionaries(int levels) {
    Value value = 1;
    for (int i = 0; i < levels; ++i) value = Dictionary{{u"a", value}};
    return value;
}

}  // namespace

TEST_CASE("numbers of different kinds are equal when they have the same value") {
    struct Row {
        const char* why;
        Value a, b;
        bool equal;
    };
    const Row rows[] = {
        {"true is one", true, 1, true},
        {"one as a real", 1, 1.0, true},
        {"one without sign", 1, 1U, true},
        {"fraction", 1, 1.5, false},
        {"zeros of either sign", 0.0, -0.0, true},
        {"minus one is not the largest", -1, kLargestUnsigned, false},
        {"minus one is not zero", -1, 0U, false},
        {"beyond the signed range", kLargestSigned, std::uint64_t{1} << 63, false},
        {"no rounding of integers", 9007199254740993, 9007199254740992.0, false},
        {"largest signed", kLargestSigned, 0x1p63, false},
        {"largest unsigned", kLargestUnsigned, 0x1p64, false},
        {"a large power of two", std::uint64_t{1} << 63, 0x1p63, true},
        {"not a number", std::nan(""), std::nan(""), false},
        {"a text is no number", u"1", 1, false},
        {"a date is no number", Date{1}, 1, false},
        {"absent", Value(), Value(), true},
        {"absent is not false", Value(), false, false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK((row.a == row.b) == row.equal);
        CHECK((row.b == row.a) == row.equal);
        if (row.equal) CHECK(row.a.hash() == row.b.hash());
    }
}

TEST_CASE("equal things are not always the same") {
    const Value text = u"a long text, longer than a word";
    const Value list = Array{1, text};
    for (const Value& value : {text, list, Value(Data{1}), Value(Dictionary{{u"a", 1}})}) {
        const Value copy = value;
        CHECK(copy.isIdentical(value));
    }
    CHECK(Value(Array{1, text}) == list);
    CHECK_FALSE(Value(Array{1, text}).isIdentical(list));
    CHECK(Value(1).isIdentical(1));
    CHECK_FALSE(Value(1).isIdentical(1.0));
    CHECK_FALSE(Value(true).isIdentical(1));
}

TEST_CASE("a copy is equal; a mutable one is a thing of its own") {
    testing::RandomValues random(3);
    for (int i = 0; i < 500; ++i) {
        const Value value = random.tree(2);
        const Value copy = value.mutableCopy();
        REQUIRE(value.copy().isIdentical(value));
        REQUIRE(copy == value);
        REQUIRE(copy.hash() == value.hash());
        const bool isScalar = value.isNumber() || value.date() != nullptr;
        REQUIRE(copy.isIdentical(value) == isScalar);
        REQUIRE((copy.mutableArray() != nullptr) == (value.array() != nullptr));
        REQUIRE((copy.mutableDictionary() != nullptr) == (value.dictionary() != nullptr));
        REQUIRE(copy.copy() == value);
        REQUIRE(copy.copy().mutableArray() == nullptr);
        REQUIRE(copy.copy().mutableDictionary() == nullptr);
    }
    const Value set = Set{1};
    const Value box = Value::boxed(Date{1});
    for (const Value& value : {set, box}) {
        CHECK(value.mutableCopy() == value);
        CHECK_FALSE(value.mutableCopy().isIdentical(value));
    }
    CHECK(Value(std::make_shared<const Object>()).mutableCopy().isAbsent());
    CHECK(Value().mutableCopy().isAbsent());
}

TEST_CASE("the very same values have one identity hash") {
    const Value text = u"text";
    const Value list = Value::mutableArray({1});
    for (const Value& value : {text, list, Value(1), Value(Date{1}), Value()}) {
        const Value same = value;
        CHECK(same.identityHash() == value.identityHash());
    }
    CHECK(Value(0.0).identityHash() == Value(-0.0).identityHash());
    CHECK(Value(u"text").identityHash() != text.identityHash());
    CHECK(Value(1).identityHash() != Value(1.0).identityHash());
}

TEST_CASE("containers of one size have many hashes, in any order and at any width") {
    Set hashes;
    for (int i = 0; i < 1000; ++i) {
        Array longList(1000, 0);
        longList.back() = i;
        hashes.add(Value(longList).hash());
        hashes.add(Value(Dictionary{{u"kind", u"row"}, {u"cells", Array{Array{1, i}, 2}}}).hash());
    }
    CHECK(hashes.count() > 1980);
    Dictionary forwards;
    Dictionary backwards;
    for (int count = 1; count < 100; ++count) {
        forwards.setObject(Set{1, count}, integerString(count));
        backwards = {};
        for (int i = count; i > 0; --i) backwards.setObject(Set{i, 1}, integerString(i));
        REQUIRE(Value(forwards).hash() == Value(backwards).hash());
    }
}

TEST_CASE("a mutable container changes through every value that refers to it") {
    const Value list = Value::mutableArray({1});
    const Value same = list;
    same.mutableArray()->push_back(2);
    CHECK(list == Value(Array{1, 2}));
    const Value entries = Value::mutableDictionary({});
    entries.mutableDictionary()->setObject(1, u"a");
    CHECK(entries == Value(Dictionary{{u"a", 1}}));
    CHECK(Value(Array{1}).mutableArray() == nullptr);
    CHECK(Value(Dictionary()).mutableDictionary() == nullptr);
    CHECK(list.mutableDictionary() == nullptr);
}

TEST_CASE("values convert by their own rules and clamp") {
    struct Row {
        const char* why;
        Value value;
        std::int32_t integer;
        std::uint64_t withoutSign;
        double real;
        bool truth;
        StringView text;
    };
    const Row rows[] = {
        {"absent", Value(), 0, 0, 0, false, u""},
        {"boolean", true, 1, 1, 1, true, u"1"},
        {"negative", -5, -5, 0, -5, true, u"-5"},
        {"fraction towards zero", -2.75, -2, 0, -2.75, true, u"-2.75"},
        {"too large", 1e300, std::numeric_limits<std::int32_t>::max(), kLargestUnsigned, 1e300,
         true, u"1e+300"},
        {"largest unsigned", kLargestUnsigned, std::numeric_limits<std::int32_t>::max(),
         kLargestUnsigned, 0x1p64, true, u"18446744073709551615"},
        {"text with a number", u" 12 apples", 12, 12, 12, true, u" 12 apples"},
        {"text that agrees", u"Yes", 0, 0, 0, true, u"Yes"},
        {"text that is no number", u"true", 0, 0, 0, false, u"true"},
        {"array", Array{1}, 0, 0, 0, false, u""},
        {"date", Date{7}, 0, 0, 0, false, u""},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(row.value.intValue() == row.integer);
        CHECK(row.value.unsignedIntegerValue() == row.withoutSign);
        CHECK(row.value.doubleValue() == row.real);
        CHECK(row.value.boolValue() == row.truth);
        CHECK(row.value.stringValue() == row.text);
    }
    CHECK(Value(std::nan("")).integerValue() == 0);
}

TEST_CASE("trees equal their copies, and differ after one change") {
    for (unsigned seed = 0; seed < 200; ++seed) {
        const Value first = testing::RandomValues(seed).tree(4);
        const Value second = testing::RandomValues(seed).tree(4);
        REQUIRE(first == second);
        REQUIRE(first.hash() == second.hash());
        REQUIRE_FALSE(Value(Array{first, 1}) == Value(Array{second, 2}));
    }
}

TEST_CASE("a million levels are compared, described and released") {
    testing::onSmallStack([] {
        constexpr int kLevels = 1'000'000;
        for (const auto& nested : {nestedArrays, nestedDictionaries}) {
            const Value a = nested(kLevels);
            const Value b = nested(kLevels);
            CHECK(a == b);
            CHECK_FALSE(a == nested(kLevels - 1));
            CHECK(a.description().size() > kLevels);
        }
        Value keys = 1;
        Value sets = 1;
        for (int i = 0; i < kLevels; ++i) {
            keys = Dictionary{{keys, 1}};
            sets = Set{sets};
        }
    });
}

TEST_CASE("sets inside sets are compared without running out of stack") {
    testing::onSmallStack([] {
        Value a = 1;
        Value b = 1;
        for (int i = 0; i < 10'000; ++i) {
            if (i == 10) CHECK(a == b);
            a = Set{a};
            b = Set{b};
        }
        CHECK_FALSE(a == b);  // only so deep
        CHECK(a == Value(a));
    });
}

TEST_CASE("containers that hold themselves or are shared many times come to an end") {
    const Value a = Value::mutableArray({1});
    const Value b = Value::mutableArray({1});
    a.mutableArray()->push_back(a);
    b.mutableArray()->push_back(b);
    CHECK(a == b);
    CHECK(a.description() == u"[1, ...]");
    a.mutableArray()->clear();
    b.mutableArray()->clear();

    Value left = 1;
    Value right = 1;
    for (int i = 0; i < 100; ++i) {
        left = Array{left, left};
        right = Array{right, right};
    }
    CHECK(left == right);
    CHECK(left.description().size() < 20'000'000);
}

TEST_CASE("a description shows what is inside") {
    const Value value = Dictionary{
        {u"list", Array{1, true, Value(), u"text"}}, {u"set", Set{0.5}}, {u"data", Data{1, 2}}};
    CHECK(value.description() == u"{list = [1, 1, (null), text]; set = {(0.5)}; data = <2 bytes>}");
}

}  // namespace QZCore
