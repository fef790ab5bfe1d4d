#include "QZCore/model/pair.h"

#include "QZCore/foundation/dictionary.h"
#include "QZCore/model/objects.h"
#include "support/printing.h"
#include "support/small_stack.h"

namespace QZCore {

TEST_CASE("a pair holds what it is given, compares by identity, and stands in a value") {
    const auto pair = QZPair::pairWithKey(u"key", 7);
    CHECK(pair->key() == Value(u"key"));
    CHECK(pair->value() == Value(7));
    pair->setKey(Value());
    pair->setValue(u"other");
    CHECK(pair->key().isAbsent());
    CHECK(pair->value() == Value(u"other"));
    CHECK(Value(pair) == Value(pair));
    CHECK(Value(pair) != Value(QZPair::pairWithKey(Value(), u"other")));
    CHECK(objectIn<QZPair>(Value(pair)) == pair);
    CHECK(objectIn<CopyableObject>(Value(pair)) == nullptr);
    CHECK(objectIn<QZPair>(Value(u"text")) == nullptr);
}

TEST_CASE("the copy of a value cannot change") {
    const Value list = Value::mutableArray({1});
    const Value entries = Value::mutableDictionary({{u"a", 1}});
    for (const Value& value : {list, entries}) {
        const Value copy = copyOf(value);
        CHECK(copy == value);
        CHECK(copy.mutableArray() == nullptr);
        CHECK(copy.mutableDictionary() == nullptr);
    }
    for (const Value& value :
         {Value(), Value(1), Value(u"a"), Value(Array{1}), Value(QZPair::pairWithKey(1, 2))}) {
        CHECK(copyOf(value).isIdentical(value));
    }
}

TEST_CASE("pairs in pairs of any depth are released") {
    testing::onSmallStack([] {
        auto pair = QZPair::pairWithKey(Value(), Value());
        for (int i = 0; i < 1'000'000; ++i) {
            Value inner(std::move(pair));
            if (i % 3 == 0) inner = Value(Array{inner});
            pair = i % 2 == 0 ? QZPair::pairWithKey(inner, 1) : QZPair::pairWithKey(1, inner);
        }
        pair = nullptr;
    });
}

}  // namespace QZCore
