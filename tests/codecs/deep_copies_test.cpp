#include "QZCore/codecs/deep_copies.h"

#include "support/printing.h"
#include "support/random_value.h"
#include "support/small_stack.h"

namespace QZCore {
namespace {

struct WithoutCopies final : Object {};

/// Checks that `copy` is a copy of `original` at every depth: new mutable
/// containers, and leaves that are the very same only when `keepsLeaves`.
void checkCopy(const Value& copy, const Value& original, bool keepsLeaves) {
    if (const Array* array = original.array()) {
        REQUIRE(copy.mutableArray() != nullptr);
        for (std::size_t i = 0; i < array->size(); ++i) {
            checkCopy((*copy.array())[i], (*array)[i], keepsLeaves);
        }
    } else if (original.dictionary() != nullptr) {
        REQUIRE(copy.mutableDictionary() != nullptr);
        for (const auto& [key, value] : *original.dictionary()) {
            checkCopy(copy.dictionary()->objectForKey(key), value, keepsLeaves);
        }
    } else {
        const bool isScalar = original.isNumber() || original.date() != nullptr;
        REQUIRE(copy.isIdentical(original) == (keepsLeaves || isScalar));
    }
}

}  // namespace

TEST_CASE("a deep copy is equal, mutable at every depth, and shares what it should") {
    testing::RandomValues random(6);
    for (int round = 0; round < 500; ++round) {
        const Array array{random.tree(4), random.tree(4)};
        const Dictionary dictionary{{u"a", array}, {random.text(), random.tree(3)}};
        for (const bool keepsLeaves : {false, true}) {
            const Array arrayCopy =
                keepsLeaves ? mutableCopyDeepCollectionsOnly(array) : mutableCopyDeep(array);
            const Dictionary copy = keepsLeaves ? mutableCopyDeepCollectionsOnly(dictionary)
                                                : mutableCopyDeep(dictionary);
            REQUIRE(arrayCopy == array);
            REQUIRE(copy == dictionary);
            checkCopy(Value::mutableArray(arrayCopy), array, keepsLeaves);
            checkCopy(Value::mutableDictionary(copy), dictionary, keepsLeaves);
        }
    }
}

TEST_CASE("what has no copies is left out of a deep copy and kept in one of collections") {
    const Value object(std::make_shared<const WithoutCopies>());
    const Array array{1, object, Array{object}, Value(), 2};
    CHECK(mutableCopyDeep(array) == Array{1, Array{}, 2});
    CHECK(mutableCopyDeepCollectionsOnly(array) == Array{1, object, Array{object}, 2});
    const Dictionary dictionary{{u"a", object}, {u"b", Value::boxed(Date{1})}, {u"c", Set{1}}};
    CHECK(mutableCopyDeep(dictionary) == Dictionary{{u"b", Value::boxed(Date{1})}, {u"c", Set{1}}});
    CHECK(mutableCopyDeepCollectionsOnly(dictionary) == dictionary);
}

TEST_CASE("containers that are deep, shared over and over or inside themselves are copied") {
    testing::onSmallStack([] {
        Value deep = 1;
        for (int i = 0; i < 200'000; ++i) {
            deep = i % 2 == 0 ? Value(Array{deep}) : Value(Dictionary{{u"a", deep}});
        }
        CHECK(Value(mutableCopyDeep(Array{deep})) == Value(Array{deep}));
    });

    const Value circle = Value::mutableArray({1});
    circle.mutableArray()->push_back(Dictionary{{u"again", circle}});
    const Array copy = mutableCopyDeep(Array{circle, circle});
    CHECK(copy == Array{circle, circle});
    CHECK_FALSE(copy[0].isIdentical(copy[1]));
    for (const Value& each : copy) {
        const Value inner = (*each.array())[1].dictionary()->objectForKey(u"again");
        CHECK(inner.isIdentical(each));
        each.mutableArray()->clear();
    }
    circle.mutableArray()->clear();

    Value shared = 1;
    for (int i = 0; i < 100; ++i) shared = Array{shared, shared};
    CHECK(Value(mutableCopyDeep(Array{shared})) == Value(Array{shared}));
}

}  // namespace QZCore
