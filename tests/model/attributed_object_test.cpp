#include "QZCore/model/attributed_object.h"

#include "QZCore/model/archive.h"
#include "QZCore/model/tree_node.h"
#include "support/printing.h"
#include "support/small_stack.h"

namespace QZCore {
namespace {

using ObjectPointer = std::shared_ptr<QZAttributedObject>;

/// Objects that hold each other, outermost first.
ObjectPointer chainOf(std::size_t length, const Value& innermost) {
    ObjectPointer object;
    for (std::size_t i = 0; i < length; ++i) {
        auto outer = std::make_shared<QZAttributedObject>();
        outer->setAttribute(object == nullptr ? innermost : Value(object), u"next");
        object = std::move(outer);
    }
    return object;
}

}  // namespace

TEST_CASE("an attribute is read by its own accessor; the default stands for an absent key only") {
    struct Row {
        const char* why;
        Value stored;
        bool truth;
        std::int32_t integer;
        std::uint32_t positive;
        std::int64_t large;
        double real;
    };
    const Row rows[] = {
        {"absent", Value(), true, 7, 7, 7, 7.5},
        {"number", 2, true, 2, 2, 2, 2},
        {"negative", -2, true, -2, 0, -2, -2},
        {"large", 1e12, true, INT32_MAX, UINT32_MAX, 1'000'000'000'000, 1e12},
        {"boolean", false, false, 0, 0, 0, 0},
        {"text that agrees", u"yes", true, 0, 0, 0, 0},
        {"text with a number", u"12abc", true, 12, 12, 12, 12},
        {"array", Array{1}, false, 0, 0, 0, 0},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        QZAttributedObject object;
        object.setAttribute(row.stored, u"key");
        CHECK(object.boolAttributeForKey(u"key", true) == row.truth);
        CHECK(object.intAttributeForKey(u"key", 7) == row.integer);
        CHECK(object.unsignedAttributeForKey(u"key", 7) == row.positive);
        CHECK(object.integerAttributeForKey(u"key", 7) == row.large);
        CHECK(object.unsignedIntegerAttributeForKey(u"key", 7) ==
              static_cast<std::uint64_t>(std::max<std::int64_t>(row.large, 0)));
        CHECK(object.doubleAttributeForKey(u"key", 7.5) == row.real);
        CHECK(object.floatAttributeForKey(u"key", 7.5F) == static_cast<float>(row.real));
        CHECK(object.attributeForKey(u"key").isIdentical(row.stored));
    }
}

TEST_CASE("scalars are stored as numbers of their type") {
    QZAttributedObject object;
    object.setBoolAttribute(true, u"bool");
    object.setFloatAttribute(0.1F, u"float");
    object.setDoubleAttribute(0.1, u"double");
    object.setIntAttribute(INT32_MIN, u"int");
    object.setUnsignedAttribute(UINT32_MAX, u"unsigned");
    object.setIntegerAttribute(INT64_MIN, u"integer");
    object.setUnsignedIntegerAttribute(UINT64_MAX, u"unsigned integer");
    CHECK(Value(object.attributes()) == Value(Dictionary{{u"bool", true},
                                                         {u"float", static_cast<double>(0.1F)},
                                                         {u"double", 0.1},
                                                         {u"int", INT32_MIN},
                                                         {u"unsigned", UINT32_MAX},
                                                         {u"integer", INT64_MIN},
                                                         {u"unsigned integer", UINT64_MAX}}));
    CHECK(object.attributeForKey(u"bool").kind() == ValueKind::Boolean);
}

TEST_CASE("an absent attribute removes its key, an absent key does nothing") {
    QZAttributedObject object;
    object.setAttribute(1, std::nullopt);
    object.setIntAttribute(1, std::nullopt);
    CHECK(object.attributes().empty());
    object.setAttribute(1, u"");
    object.setAttribute(2, u"a");
    object.setAttribute(Value(), u"a");
    object.removeAttributeForKey(u"b");
    CHECK(Value(object.attributes()) == Value(Dictionary{{u"", 1}}));
    object.removeAttributeForKey(u"");
    CHECK(object.attributeForKey(u"", u"default") == Value(u"default"));
}

TEST_CASE("copies have new collections and share the rest; taking over copies one level") {
    const auto inner = std::make_shared<QZAttributedObject>();
    const Value list = Value::mutableArray({Value::mutableArray({1}), Value(inner)});
    QZAttributedObject object;
    object.setAttribute(list, u"list");
    object.setAttribute(Value(inner), u"object");

    const auto copy = object.copyWithZone();
    CHECK(copy->isEqualTo(object));
    const Array& copied = *copy->attributeForKey(u"list").mutableArray();
    CHECK(copied[0].mutableArray() != nullptr);
    CHECK_FALSE(copied[0].isIdentical((*list.array())[0]));
    CHECK(copied[1].isIdentical(Value(inner)));
    CHECK(copy->attributeForKey(u"object").isIdentical(Value(inner)));

    QZAttributedObject other;
    other.setAttribute(1, u"gone");
    other.setAttributesFromObject(object);
    CHECK(other.isEqual(Value(copy)));
    const Value taken = other.attributeForKey(u"list");
    CHECK(taken.mutableArray() == nullptr);
    CHECK((*taken.array())[0].isIdentical((*list.array())[0]));
    CHECK_FALSE(other.attributeForKey(u"object").isIdentical(Value(inner)));
    other.setAttributesFromObject(other);
    CHECK(other.isEqualTo(object));
    other.setAttribute(1, u"more");
    CHECK(object.attributes().count() == 2);
}

TEST_CASE("objects are equal by their attributes, whatever their class and depth") {
    struct Derived final : QZAttributedObject {};
    const auto derived = std::make_shared<Derived>();
    derived->setAttribute(1.0, u"a");
    QZAttributedObject object;
    object.setAttribute(1, u"a");
    CHECK(object.isEqual(Value(derived)));
    CHECK(derived->hash() == object.hash());
    CHECK_FALSE(object.isEqual(Value(Dictionary{{u"a", 1}})));
    CHECK_FALSE(object.isEqual(Value(QZTreeNode::treeNodeWithData(1))));
    CHECK_FALSE(object.isEqual(Value()));
    object.setAttribute(2, u"b");
    CHECK_FALSE(object.isEqual(Value(derived)));
    CHECK(Value(object.copyWithZone()) != Value(derived));
    const Set members{Value(chainOf(3, 1)), Value(chainOf(3, 2)), Value(chainOf(3, 1))};
    CHECK(members.count() == 2);
}

TEST_CASE("a description has the object's own, the name of the class and the attributes") {
    QZAttributedObject object;
    CHECK(object.description() == u"<object>\n<QZAttributedObject>\n{}");
    object.setAttribute(Value(chainOf(1, Array{1, u"x"})), u"a");
    CHECK(object.description() ==
          u"<object>\n<QZAttributedObject>\n"
          u"{a = <object>\n<QZAttributedObject>\n{next = [1, x]}}");
}

TEST_CASE("objects that hold each other in a circle are compared and described") {
    const auto circle = [] {
        auto object = chainOf(2, 1);
        objectIn<QZAttributedObject>(object->attributeForKey(u"next"))
            ->setAttribute(Value(object), u"next");
        return object;
    };
    const auto first = circle();
    const auto second = circle();
    CHECK(first->isEqualTo(*second));
    CHECK(first->hash() == second->hash());
    CHECK(first->copyWithZone()->isEqualTo(*second));
    CHECK(
        first->description().ends_with(u"..."
                                       u"}}"));
    CHECK_FALSE(archivedData(Value(first), first->archivableClasses()).data.has_value());
    for (const auto& object : {first, second}) object->removeAttributeForKey(u"next");
}

TEST_CASE("a chain of 100,000 objects is compared, described, archived and released") {
    static constexpr std::size_t kLength = 100'000;
    testing::onSmallStack([] {
        const auto chain = chainOf(kLength, u"end");
        CHECK(chain->isEqualTo(*chainOf(kLength, u"end")));
        CHECK_FALSE(chain->isEqualTo(*chainOf(kLength, u"other end")));
        CHECK(chain->hash() == chainOf(kLength, u"end")->hash());
        CHECK(chain->copyWithZone()->isEqualTo(*chain));
        CHECK(chain->description().size() > kLength);
        for (const auto coding : {ArchiveCoding::Keyed, ArchiveCoding::Sequential}) {
            const auto bytes = archivedData(Value(chain), chain->archivableClasses(), coding).data;
            REQUIRE(bytes.has_value());
            const auto back = unarchivedValue(*bytes, chain->archivableClasses());
            CHECK(chain->isEqual(back.value));
        }
    });
}

}  // namespace QZCore
