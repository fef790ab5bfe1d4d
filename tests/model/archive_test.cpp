#include "QZCore/model/archive.h"

#include <limits>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/model/tree_node.h"
#include "support/comma_locale.h"
#include "support/printing.h"
#include "support/random_value.h"
#include "support/small_stack.h"
#include "support/tree_text.h"

namespace QZCore {
namespace {

using namespace testing;

// ---- Classes ----

/// A value type that is archived in its box.
struct Spot {
    double x = 0;
    bool operator==(const Spot&) const = default;
};

ArchivedClass spotClass() {
    return {u"Spot", &typeid(Boxed<Spot>),
            [](const Object& object, ArchiveEncoder& coder) {
                const double x = static_cast<const Boxed<Spot>&>(object).value.x;
                coder.allowsKeyedCoding() ? coder.encodeObject(x, u"x") : coder.encodeObject(x);
            },
            [](ArchiveDecoder& coder) -> std::shared_ptr<const Object> {
                const auto x = coder.allowsKeyedCoding() ? coder.decodeObjectForKey(u"x")
                                                         : coder.decodeObject();
                if (!x || !x->isNumber()) return nullptr;
                return std::make_shared<Boxed<Spot>>(Spot{x->doubleValue()});
            }};
}

/// A node that takes an unreadable datum for none.
class Lenient final : public QZTreeNode {
public:
    [[nodiscard]] static std::shared_ptr<Lenient> initWithCoder(ArchiveDecoder& coder) {
        auto made = std::make_shared<Lenient>();
        made->setData(coder.decodeObjectForKey(u"Data").value_or(u"unreadable"));
        return made;
    }
};

ArchiveClasses allClasses() {
    return {.objects = {archivedClass<QZTreeNode>(u"QZTreeNode"), spotClass(),
                        archivedClass<Lenient>(u"Lenient")}};
}

// ---- There and back ----

Data archived(const Value& root, ArchiveCoding coding = ArchiveCoding::Keyed) {
    const PropertyListData archive = archivedData(root, allClasses(), coding);
    CAPTURE(archive.error);
    REQUIRE(archive.data.has_value());
    return *archive.data;
}

Value unarchived(DataView bytes, const ArchiveClasses& classes = allClasses()) {
    const PropertyListResult result = unarchivedValue(bytes, classes);
    CAPTURE(result.error);
    REQUIRE(result.error.empty());
    return result.value;
}

Value thereAndBack(const Value& root) {
    const Value result = unarchived(archived(root));
    CHECK(archived(result) == archived(root));  // kinds and sharing, too
    return result;
}

// ---- Archives by hand ----

/// The elements of an array. `Array{Array{1}}` would be an array of arrays to one
/// compiler, and a copy to the other.
struct Elements {
    Elements(std::initializer_list<Value> list) : values(list) {}
    Array values;
};

const Array kForms{Array{u"array"}, Array{u"QZTreeNode", u"Data", u"Children"},
                   Array{u"Lenient", u"Data"}, Array{u"set"}, Array{u"dictionary"}};

Dictionary partsOf(Elements objects, Value root = 1) {
    return {{u"QZArchive", 1},
            {u"coding", u"keyed"},
            {u"forms", kForms},
            {u"objects", std::move(objects.values)},
            {u"root", std::move(root)}};
}

PropertyListResult read(const Dictionary& parts, const ArchiveClasses& classes = allClasses()) {
    return unarchivedValue(writePropertyList(parts).data.value(), classes);
}

}  // namespace

TEST_CASE("values of all kinds come back as they were") {
    const Array values{Value(),
                       Date{-62'135'596'800.125},
                       Date{std::numeric_limits<double>::infinity()},
                       String{u'a', 0, 1, 0xD800, 0xFFFF},  // what XML cannot hold
                       URL{u"https://example.org/a?b"},
                       URL{String{0xDC00}},
                       Value::mutableArray({u"x", Value(), Array{}}),
                       Set{1, u"b", Array{2}},
                       Dictionary{{u"k", 1}, {2, Set{}}},
                       Value::mutableDictionary({{Date{1}, u"v"}}),
                       Value::boxed(Spot{0.5})};
    for (const auto coding : {ArchiveCoding::Keyed, ArchiveCoding::Sequential}) {
        const Value back = unarchived(archived(values, coding));
        for (std::size_t i = 0; i < values.size(); ++i) {
            const Value& value = (*back.array())[i];
            CAPTURE(value);
            CHECK(value == values[i]);
            CHECK(value.kind() == values[i].kind());
            CHECK((value.mutableArray() == nullptr) == (values[i].mutableArray() == nullptr));
            CHECK((value.mutableDictionary() == nullptr) ==
                  (values[i].mutableDictionary() == nullptr));
        }
    }
    for (const Value& value : values) CHECK(unarchived(archived(value)).kind() == value.kind());
    RandomValues random(2);
    for (int i = 0; i < 500; ++i) {
        const Value value = random.tree(5);
        REQUIRE(thereAndBack(value) == value);
    }
}

TEST_CASE("what is shared stays shared, what is equal stays apart") {
    const Value text(u"shared");
    const Value list = Value::mutableArray({text, text, u"shared"});
    const Value back = thereAndBack(Array{list, list, text});
    const Array& parts = *back.array();
    const Array& inner = *parts[0].array();
    CHECK(parts[0].isIdentical(parts[1]));
    CHECK(inner[0].isIdentical(inner[1]));
    CHECK(inner[0].isIdentical(parts[2]));
    CHECK_FALSE(inner[0].isIdentical(inner[2]));
}

TEST_CASE("an object may hand over the same thing twice") {
    struct Twice final : Object {
        Value held = Array{7};
        void encodeWithCoder(ArchiveEncoder& coder) const {
            coder.encodeObject(held, u"a");
            coder.encodeObject(held, u"b");
        }
        static std::shared_ptr<Twice> initWithCoder(ArchiveDecoder& coder) {
            CHECK_FALSE(coder.containsValueForKey(u"c"));
            CHECK(coder.decodeObjectForKey(u"c")->isAbsent());
            auto made = std::make_shared<Twice>();
            made->held = coder.decodeObjectForKey(u"a").value();
            CHECK(made->held.isIdentical(*coder.decodeObjectForKey(u"b")));
            return made;
        }
    };
    const ArchiveClasses classes{.objects = {archivedClass<Twice>(u"Twice")}};
    const auto archive = archivedData(Value(std::make_shared<Twice>()), classes);
    const Value back = unarchived(archive.data.value(), classes);
    CHECK(objectIn<Twice>(back)->held == Value(Array{7}));
}

TEST_CASE("an archive is written as this property list") {
    const Array forms{Array{u"QZTreeNode", u"Data", u"Children"}, Array{u"array"},
                      Array{u"QZTreeNode", u"Children"}};
    const Array objects{Array{0, 2, 3}, u"a", Array{1, 4, 5}, Array{2, 6}, Array{0, 7, 6},
                        Array{1},       u"c"};
    CHECK(readPropertyList(archived(Value(treeOf(u"a(- c)")))).value ==
          Value(Dictionary{{u"QZArchive", 1},
                           {u"coding", u"keyed"},
                           {u"forms", forms},
                           {u"objects", objects},
                           {u"root", 1}}));
}

TEST_CASE("trees come back with the parents of all but their roots, in both codings") {
    const auto tree = treeOf(u"a(b(c -) d)");
    for (const auto coding : {ArchiveCoding::Keyed, ArchiveCoding::Sequential}) {
        const auto back = objectIn<QZTreeNode>(unarchived(archived(Value(tree), coding)));
        CHECK(textOf(back) == textOf(tree));
        CHECK(isLinked(back));
    }
    const auto branch = objectIn<QZTreeNode>(thereAndBack(Value(tree->firstChild())));
    CHECK(textOf(branch) == u"b(c -)");
    CHECK(branch->parent() == nullptr);
}

TEST_CASE("a node that was archived without children takes none up") {
    Dictionary parts = partsOf({Array{0, 2}, u"a"});
    parts.setObject(Elements{Array{u"QZTreeNode", u"Data"}}.values, u"forms");
    const auto node = objectIn<QZTreeNode>(read(parts).value);
    REQUIRE(textOf(node) == u"a");
    const auto child = treeOf(u"b");
    node->addChild(child);
    node->insertChildren({nullptr, child}, 99);
    node->moveChild(child, 0);
    CHECK(child->parent() == node);
    CHECK(node->numberOfChildren() == 0);
    CHECK(thereAndBack(Value(node)).object() != nullptr);
    node->setChildren({child});
    node->addChild(treeOf(u"c"));
    CHECK(textOf(node) == u"a(b c)");
}

TEST_CASE("what cannot be archived gives a reason and no data") {
    struct Unknown final : Object {};
    struct Miscoded final : Object {
        static void encodeWithCoder(ArchiveEncoder& coder) { coder.encodeObject(1, u"a\uFFFF"); }
        static std::shared_ptr<Miscoded> initWithCoder(ArchiveDecoder&) { return nullptr; }
    };
    const Value itself = Value::mutableArray({});
    itself.mutableArray()->push_back(Array{itself});
    const auto loop = treeOf(u"a(b)");
    loop->firstChild()->addChild(loop);
    Value folded = Value(treeOf(u"a"));
    for (int i = 0; i < 40; ++i) folded = Array{folded, folded};
    const Value values[] = {Value(std::make_shared<Unknown>()),
                            Array{1, Value(std::make_shared<Unknown>())},
                            Value(std::make_shared<Miscoded>()),
                            itself,
                            Value(loop),
                            folded};
    ArchiveClasses classes = allClasses();
    classes.objects.push_back(archivedClass<Miscoded>(u"Miscoded"));
    for (const Value& value : values) {
        for (const auto coding : {ArchiveCoding::Keyed, ArchiveCoding::Sequential}) {
            const PropertyListData archive = archivedData(value, classes, coding);
            CHECK_FALSE(archive.data.has_value());
            CHECK_FALSE(archive.error.empty());
        }
    }
    itself.mutableArray()->clear();
    loop->firstChild()->removeAllChildren();
    CHECK_FALSE(archivedData(1, {.objects = {}, .plain = {PlainClass::Text}}).data.has_value());
}

TEST_CASE("classes outside the list are refused, wherever they are") {
    const Value spot = Value::boxed(Spot{1});
    const auto node = QZTreeNode::treeNodeWithData(Array{1, Dictionary{{u"k", spot}}});
    const auto parent = treeOf(u"a");
    parent->addChild(node);
    ArchiveClasses classes = allClasses();
    std::erase_if(classes.objects, [](const ArchivedClass& row) { return row.name == u"Spot"; });
    for (const Value& value : {spot, Value(Array{spot}), Value(Dictionary{{spot, 1}}),
                               Value(Set{spot}), Value(node), Value(parent)}) {
        const PropertyListResult result = unarchivedValue(archived(value), classes);
        CHECK(result.value.isAbsent());
        CHECK(result.error == u"a class that is not allowed: Spot");
    }
    const std::pair<Value, PlainClass> plain[] = {
        {u"a", PlainClass::Text},
        {Data{1}, PlainClass::Bytes},
        {true, PlainClass::Number},
        {1.5, PlainClass::Number},
        {Date{1}, PlainClass::Date},
        {URL{u"a:b"}, PlainClass::URL},
        {Array{}, PlainClass::List},
        {Set{}, PlainClass::Set},
        {Value::mutableArray({}), PlainClass::List},
        {String{1}, PlainClass::Text},
        {Dictionary{}, PlainClass::Dictionary},
    };
    for (const auto& row : plain) {
        const Value& value = row.first;
        CAPTURE(value);
        ArchiveClasses without;
        std::erase(without.plain, row.second);
        CHECK_FALSE(unarchivedValue(archived(value), without).error.empty());
        CHECK(unarchivedValue(archived(value), {}).error.empty());
    }
}

TEST_CASE("an object decides what its unreadable contents mean") {
    const Dictionary parts = partsOf({Array{2, 2}, Array{0, 3}, Array{1, 0, 0}});
    CHECK_FALSE(objectIn<Lenient>(read(parts).value)->data() == Value(u"unreadable"));
    ArchiveClasses classes = allClasses();
    classes.objects.erase(classes.objects.begin());
    const auto tolerated = objectIn<Lenient>(read(parts, classes).value);
    CHECK(tolerated->data() == Value(u"unreadable"));
}

TEST_CASE("damaged archives give a reason and nothing else") {
    struct Row {
        const char* why;
        Elements objects;
        Value root = 1;
    };
    const Row rows[] = {
        {"reference past the table", {Array{0, 2}}},
        {"negative reference", {Array{0, -1}}},
        {"huge reference", {Array{0, std::numeric_limits<std::uint64_t>::max()}}},
        {"reference that is no integer", {Array{0, 1.0}, u"a"}},
        {"reference to itself", {Array{0, 1}}},
        {"circle of two arrays", {Array{0, 2}, Array{0, 1}}},
        {"circle of a node and its list", {Array{1, 0, 2}, Array{0, 1}}},
        {"circle behind an unreadable class", {Array{2, 1}}},
        {"no root", {u"a"}, Value()},
        {"root that is no integer", {u"a"}, u"1"},
        {"no form", {Array{}}},
        {"form past the table", {Array{5}}},
        {"negative form", {Array{-1}}},
        {"object that is a dictionary", {Dictionary{}}},
        {"fewer contents than keys", {Array{1, 0}}},
        {"children that are no array", {Array{1, 0, 2}, u"a"}},
        {"child that is no node", {Array{1, 0, 2}, Array{0, 3}, u"a"}},
        {"child that is absent", {Array{1, 0, 2}, Array{0, 0}}},
        {"member that is absent", {Array{3, 0}}},
        {"key without value", {Array{4, 2}, u"a"}},
        {"absent key", {Array{4, 0, 2}, u"a"}},
        {"absent value", {Array{4, 2, 0}, u"a"}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const PropertyListResult result = read(partsOf(row.objects, row.root));
        CHECK(result.value.isAbsent());
        CHECK_FALSE(result.error.empty());
    }
    for (const char16_t* part : {u"QZArchive", u"coding", u"forms", u"objects", u"root"}) {
        CAPTURE(String(part));
        Dictionary parts = partsOf({Array{0}});
        REQUIRE(read(parts).error.empty());
        parts.setObject(Date{0}, part);
        CHECK_FALSE(read(parts).error.empty());
        parts.removeObjectForKey(part);
        CHECK_FALSE(read(parts).error.empty());
    }
    for (const Array& form :
         {Array{u"date", 1}, Array{}, Array{u"date"}, Array{u"URL"}, Array{u"string"}}) {
        for (const Value& content : {Value(u"a"), Value(Data{1}), Value(1)}) {
            Dictionary parts = partsOf({Array{0, content}});
            parts.setObject(Elements{form}.values, u"forms");
            const bool isDate = form == Array{u"date"} && content.isNumber();
            CHECK(read(parts).error.empty() == isDate);
        }
    }
}

TEST_CASE("every part and every changed byte of an archive is survived") {
    const auto tree = treeOf(u"a(b(- c) d)");
    tree->setData(Set{1, u"x"});
    const Data bytes = archived(Value(tree));
    for (std::size_t i = 0; i + 2 < bytes.size(); ++i) {
        const DataView prefix(bytes.data(), i);
        REQUIRE_FALSE(unarchivedValue(prefix, allClasses()).error.empty());
        Data changed = bytes;
        for (const char byte : {'0', '9', 'a', '<'}) {
            changed[i] = static_cast<std::uint8_t>(byte);
            const PropertyListResult result = unarchivedValue(changed, allClasses());
            REQUIRE((result.error.empty() || result.value.isAbsent()));
        }
    }
}

TEST_CASE("what would keep a reader busy for ever is refused") {
    Elements folded{};  // each node lists the next one twice: 2^60 nodes
    for (int i = 0; i < 60; ++i) {
        folded.values.push_back(Array{1, 0, 2 * i + 2});
        folded.values.push_back(Array{0, 2 * i + 3, 2 * i + 3});
    }
    folded.values.push_back(Array{1, 0, 0});
    CHECK(read(partsOf(folded)).error == u"objects are shared too often");

    Elements alike{};  // lists that differ in the middle only, all in one set
    Array set{3};
    constexpr int kLists = 700;
    constexpr int kLength = 200;
    for (int i = 0; i < kLists; ++i) {
        set.push_back(i + 2);
        Array list(kLength + 1, kLists + 2);
        list[0] = 0;
        list[kLength / 2] = kLists + 3 + i;
        alike.values.push_back(std::move(list));
    }
    alike.values.insert(alike.values.begin(), set);
    alike.values.push_back(u"filling");
    for (int i = 0; i < kLists; ++i) alike.values.push_back(i);
    CHECK(read(partsOf(alike)).error == u"a set or dictionary that takes too long to make");
}

TEST_CASE("trees, values and nodes in data of any depth are archived and released") {
    constexpr std::size_t kNodes = 200'000;
    onSmallStack([] {
        std::mt19937 random;
        for (const std::size_t reach : {std::size_t{1}, kNodes}) {
            auto root = randomTree(random, kNodes, reach).front();
            const std::size_t maxLevel = root->maxLevel();
            const Data bytes = archived(Value(root));
            root = objectIn<QZTreeNode>(unarchived(bytes));
            CHECK(root->numberOfAllChildrenRecursively() == kNodes - 1);
            CHECK(root->maxLevel() == maxLevel);
        }
        Value value(1);
        for (std::size_t i = 0; i < kNodes / 2; ++i) {
            value = i % 2 == 0 ? Value(Array{value}) : Value(QZTreeNode::treeNodeWithData(value));
        }
        value = unarchived(archived(value));
    });
}

TEST_CASE("archives do not depend on the locale") {
    const Data before = archived(Array{0.5, Date{0.25}});
    const CommaLocale comma;
    CHECK(archived(unarchived(before)) == before);
}

}  // namespace QZCore
