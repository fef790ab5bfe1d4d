#include <algorithm>

#include "QZCore/color/color.h"
#include "QZCore/dates/placeholder_dates.h"
#include "QZCore/foundation/range.h"
#include "QZCore/geometry/plane.h"
#include "QZCore/model/archive.h"
#include "QZCore/model/attributed_object.h"
#include "QZCore/model/tree_node.h"
#include "QZCore/richtext/rich_text.h"
#include "support/placeholders.h"
#include "support/printing.h"
#include "support/random_value.h"

namespace QZCore {
namespace {

constexpr ArchiveCoding kCodings[] = {ArchiveCoding::Keyed, ArchiveCoding::Sequential};

/// A class of an application.
class Task final : public QZAttributedObject {
public:
    static ArchivedClass archived() { return archivedClass<Task>(u"Task"); }
    static std::shared_ptr<Task> initWithCoder(ArchiveDecoder& coder) {
        auto task = std::make_shared<Task>();
        task->readFromCoder(coder);
        return task;
    }

protected:
    std::shared_ptr<QZAttributedObject> newObject() const override {
        return std::make_shared<Task>();
    }
    ArchivedClass ownClass() const override { return archived(); }
};

bool isTask(const Value& value) { return objectIn<Task>(value) != nullptr; }

ArchiveClasses taskClasses() { return Task().archivableClasses(); }

std::shared_ptr<QZAttributedObject> objectWith(const Value& attribute) {
    auto object = std::make_shared<QZAttributedObject>();
    object->setAttribute(attribute, u"a");
    return object;
}

std::shared_ptr<QZAttributedObject> unarchived(DataView bytes, const ArchiveClasses& classes) {
    const PropertyListResult result = unarchivedValue(bytes, classes);
    CAPTURE(result.error);
    REQUIRE(result.error.empty());
    return objectIn<QZAttributedObject>(result.value);
}

std::shared_ptr<QZAttributedObject> thereAndBack(const QZAttributedObject& object,
                                                 const ArchiveClasses& classes,
                                                 ArchiveCoding coding = ArchiveCoding::Keyed) {
    const PropertyListData archive = archivedData(Value(object.copyWithZone()), classes, coding);
    CAPTURE(archive.error);
    REQUIRE(archive.data.has_value());
    return unarchived(*archive.data, classes);
}

/// An archive of objects written by hand; the first is the root.
std::shared_ptr<QZAttributedObject> read(const Array& forms, const Array& objects,
                                         StringView coding = u"keyed") {
    const Dictionary parts{{u"QZArchive", 1},
                           {u"coding", coding},
                           {u"forms", forms},
                           {u"objects", objects},
                           {u"root", 1}};
    return unarchived(writePropertyList(parts).data.value(), taskClasses());
}

/// A random object: values of all kinds, boxes, rich texts and further objects.
Value randomObject(testing::RandomValues& random, int depth) {
    const auto object =
        random.upTo(1) == 0 ? std::make_shared<QZAttributedObject>() : std::make_shared<Task>();
    const Value extras[] = {Value::boxed(Point{0.5, -1}),
                            Value::boxed(Size{1e300, 2}),
                            Value::boxed(Rect{{1, 2}, {3, 4}}),
                            Value::boxed(Range{7, kNotFound}),
                            Value::boxed(RichText(random.text())),
                            URL{u"https://example.org/"},
                            Set{1, random.text()},
                            Value::mutableArray({random.text(), Set{}}),
                            Value::mutableDictionary({{random.text(), 1}})};
    for (std::uint64_t left = random.upTo(6); left > 0; --left) {
        object->setAttribute(random.tree(3), random.text());
        object->setAttribute(extras[random.upTo(std::size(extras) - 1)], random.text());
        if (depth > 0) object->setAttribute(Array{randomObject(random, depth - 1)}, random.text());
    }
    return Value(object);
}

}  // namespace

TEST_CASE("random attributed objects come back as they were") {
    testing::RandomValues random(3);
    const ArchiveClasses classes = taskClasses();
    for (int i = 0; i < 200; ++i) {
        const Value value = randomObject(random, 2);
        for (const ArchiveCoding coding : kCodings) {
            const auto archive = archivedData(value, classes, coding).data;
            REQUIRE(archive.has_value());
            const auto back = unarchived(*archive, classes);
            REQUIRE(back->isEqual(value));
            REQUIRE(isTask(Value(back)) == isTask(value));
            REQUIRE(archivedData(Value(back), classes, coding).data == archive);  // all kinds, too
        }
    }
}

TEST_CASE("an attributed object is written as this property list") {
    const auto object = objectWith(u"b");
    const auto contentOf = [&](ArchiveCoding coding) {
        const auto data = archivedData(Value(object), object->archivableClasses(), coding).data;
        return *readPropertyList(data.value()).value.dictionary();
    };
    const Dictionary keyed = contentOf(ArchiveCoding::Keyed);
    CHECK(keyed.objectForKey(u"forms") == Value(Array{Array{u"QZAttributedObject", u"QZAttributes"},
                                                      Array{u"mutable dictionary"}}));
    CHECK(keyed.objectForKey(u"objects") == Value(Array{Array{0, 2}, Array{1, 3, 4}, u"a", u"b"}));
    const Dictionary sequential = contentOf(ArchiveCoding::Sequential);
    CHECK(sequential.objectForKey(u"forms").array()->front() ==
          Value(Array{u"QZAttributedObject"}));
    CHECK(sequential.objectForKey(u"objects") == keyed.objectForKey(u"objects"));
}

TEST_CASE("attributes that are missing or wrong give none, and can be set") {
    const Array keyedForm{u"QZAttributedObject", u"QZAttributes"};
    const Array tree{u"QZTreeNode", u"Data"};
    struct Row {
        const char* why;
        Array forms, objects;
        StringView coding = u"keyed";
    };
    const Row rows[] = {
        {"no attributes", {Array{u"QZAttributedObject", u"Other"}, tree}, {Array{0, 2}, u"x"}},
        {"no contents", {Array{u"QZAttributedObject"}, tree}, {Array{0}, u"x"}, u"sequential"},
        {"absent attributes", {keyedForm, tree}, {Array{0, 0}, u"x"}},
        {"an array", {keyedForm, Array{u"array"}}, {Array{0, 2}, Array{1, 3}, u"x"}},
        {"a string", {keyedForm, tree}, {Array{0, 2}, u"x"}},
        {"key without value", {keyedForm, Array{u"dictionary"}}, {Array{0, 2}, Array{1, 3}, u"x"}},
        {"a foreign class",
         {keyedForm, Array{u"dictionary"}, tree},
         {Array{0, 2}, Array{1, 3, 4}, u"x", Array{2, 3}}},
        {"a part of another class",
         {keyedForm, Array{u"dictionary"}, Array{u"TextAttributes", u"attributes"}},
         {Array{0, 2}, Array{1, 3, 4}, u"x", Array{2, 5}, Array{1, 3, 3}}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const auto object = read(row.forms, row.objects, row.coding);
        REQUIRE(object != nullptr);
        CHECK(object->attributes().empty());
        object->setAttribute(1, u"a");
        CHECK(object->attributes().count() == 1);
    }
}

TEST_CASE("only the attributed object that holds a foreign class loses its attributes") {
    const auto inner = objectWith(Array{Value(QZTreeNode::treeNodeWithData(1))});
    const auto outer = objectWith(Dictionary{{u"inner", Value(inner)}, {u"kept", 1}});
    ArchiveClasses classes = taskClasses();
    CHECK_FALSE(archivedData(Value(outer), classes).data.has_value());
    classes.objects.push_back(archivedClass<QZTreeNode>(u"QZTreeNode"));
    for (const ArchiveCoding coding : kCodings) {
        const auto back = thereAndBack(*outer, classes, coding);
        const Dictionary& held = *back->attributeForKey(u"a").dictionary();
        CHECK(held.objectForKey(u"kept") == Value(1));
        const auto backInner = objectIn<QZAttributedObject>(held.objectForKey(u"inner"));
        CHECK(backInner->attributes().empty() == (coding == ArchiveCoding::Keyed));
    }
    CHECK_FALSE(archivedData(Value(objectWith(Value::boxed(Color()))), classes).data.has_value());
}

TEST_CASE("classes of an application are allowed where they are the object's own or derived") {
    const auto task = std::make_shared<Task>();
    task->setAttribute(Value(task->copyWithZone()), u"own class");
    const auto back = thereAndBack(*task, taskClasses());
    CHECK(isTask(Value(back)));
    CHECK(isTask(back->attributeForKey(u"own class")));
    const auto holder = thereAndBack(*objectWith(Value(task)), taskClasses());
    CHECK(isTask(holder->attributeForKey(u"a")));

    struct Strict final : QZAttributedObject {
        static std::shared_ptr<Strict> initWithCoder(ArchiveDecoder& coder) {
            auto made = std::make_shared<Strict>();
            made->readFromCoder(coder);
            return made;
        }
        [[nodiscard]] ArchiveClasses archivableClasses() const override {
            return {.objects = {}, .plain = {PlainClass::Dictionary, PlainClass::Text}};
        }
    };
    const ArchiveClasses classes{.objects = {archivedClass<Strict>(u"Strict")}};
    for (const Value& attribute : {Value(u"text"), Value(1)}) {
        const auto strict = std::make_shared<Strict>();
        strict->setAttribute(attribute, u"a");
        const auto archive = archivedData(Value(strict), classes).data;
        const bool isText = attribute.string() != nullptr;
        CHECK(unarchived(archive.value(), classes)->attributes().empty() != isText);
    }
}

TEST_CASE("attributes that objects share in an archive are changed in one of them") {
    const Array forms{Array{u"QZAttributedObject", u"QZAttributes"}, Array{u"mutable dictionary"},
                      Array{u"array"}};
    const auto root = read(forms, {Array{0, 2}, Array{1, 3, 4}, u"a", Array{2, 5, 5, 6},
                                   Array{0, 7}, Array{0, 7}, Array{1, 3, 3}});
    const Value list = root->attributeForKey(u"a");
    const Array& objects = *list.array();
    REQUIRE(objects.size() == 3);
    CHECK(objects[0].isIdentical(objects[1]));
    objectIn<QZAttributedObject>(objects[0])->setAttribute(1, u"a");
    CHECK(objectIn<QZAttributedObject>(objects[2])->attributeForKey(u"a") == Value(u"a"));
}

TEST_CASE("placeholder dates survive archives") {
    for (const Date placeholder : testing::allPlaceholderDates()) {
        for (const ArchiveCoding coding : kCodings) {
            const auto back = thereAndBack(*objectWith(placeholder), taskClasses(), coding);
            CHECK(*back->attributeForKey(u"a").date() == placeholder);
        }
    }
}

}  // namespace QZCore
