#include "QZCore/foundation/dictionary.h"

#include <map>

#include "support/printing.h"
#include "support/random_value.h"

namespace QZCore {
namespace {

std::vector<String> keysOf(const Dictionary& dictionary) {
    std::vector<String> keys;
    for (const DictionaryEntry& entry : dictionary) keys.push_back(entry.key.stringValue());
    return keys;
}

}  // namespace

TEST_CASE("entries keep the order in which their keys came") {
    Dictionary entries{{u"b", 1}, {u"a", 2}, {u"c", 3}};
    entries.setObject(4, u"b");
    CHECK(keysOf(entries) == std::vector<String>{u"b", u"a", u"c"});
    entries.removeObjectForKey(u"b");
    entries.setObject(5, u"b");
    CHECK(keysOf(entries) == std::vector<String>{u"a", u"c", u"b"});
    CHECK(entries.objectForKey(u"b") == Value(5));
    CHECK(entries == Dictionary{{u"c", 3}, {u"b", 5}, {u"a", 2}});
}

TEST_CASE("an absent key or value stores nothing") {
    Dictionary entries;
    entries.setObject(Value(), u"a");
    entries.setObject(1, Value());
    entries.removeObjectForKey(Value());
    CHECK(entries.empty());
    CHECK(entries.find(Value()) == nullptr);
    CHECK(entries.objectForKey(u"a").isAbsent());
}

TEST_CASE("equal numbers are one key") {
    Dictionary entries{{1, u"integer"}, {1.0, u"real"}, {u"1", u"text"}};
    CHECK(entries.count() == 2);
    CHECK(entries.objectForKey(Value(true)) == Value(u"real"));
    CHECK(Set{1, 1.0, true, u"1"}.count() == 2);
}

TEST_CASE("a dictionary does what an ordered map does") {
    testing::RandomValues random(7);
    Dictionary entries;
    std::map<std::uint64_t, std::uint64_t> expected;
    for (int step = 0; step < 300'000; ++step) {
        // Grows, shrinks to nothing, and grows again.
        const bool growing = step / 30'000 % 2 == 0;
        const std::uint64_t key = random.upTo(5000);
        if (random.upTo(9) < (growing ? 8U : 2U)) {
            const std::uint64_t value = random.upTo(1000);
            entries.setObject(value, unsignedString(key));
            expected[key] = value;
        } else {
            entries.removeObjectForKey(unsignedString(key));
            expected.erase(key);
        }
        const auto found = expected.find(random.upTo(5000));
        if (found == expected.end()) continue;
        const Value* value = entries.find(StringView(unsignedString(found->first)));
        REQUIRE(value != nullptr);
        REQUIRE(*value == Value(found->second));
    }
    REQUIRE(entries.count() == expected.size());
    std::size_t walked = 0;
    for (const auto& [key, value] : entries) {
        REQUIRE(expected.at(static_cast<std::uint64_t>(key.integerValue())) ==
                value.unsignedIntegerValue());
        ++walked;
    }
    REQUIRE(walked == expected.size());
}

TEST_CASE("a hundred thousand entries come and go") {
    constexpr int kEntries = 100'000;
    Dictionary entries;
    for (int i = 0; i < kEntries; ++i) entries.setObject(i, integerString(i));
    CHECK(entries.count() == kEntries);
    const Dictionary copy = entries;
    for (int i = 0; i < kEntries; i += 2) entries.removeObjectForKey(integerString(i));
    CHECK(entries.count() == kEntries / 2);
    CHECK(copy.count() == kEntries);
    std::int64_t next = 1;
    for (const auto& [key, value] : entries) {
        REQUIRE(value == Value(next));
        next += 2;
    }
    for (int i = 1; i < kEntries; i += 2) entries.removeObjectForKey(integerString(i));
    CHECK(entries.empty());
    CHECK(entries.begin() == entries.end());
    entries.setObject(1, u"a");
    CHECK(keysOf(entries) == std::vector<String>{u"a"});
}

TEST_CASE("a hundred thousand containers are found as fast as texts") {
    constexpr int kMembers = 100'000;
    Set members;
    for (int i = 0; i < kMembers; ++i) members.add(Dictionary{{u"a", Array{1, i}}, {u"b", 2}});
    CHECK(members.count() == kMembers);
    CHECK(members.contains(Dictionary{{u"b", 2}, {u"a", Array{1, 99'999}}}));
    CHECK_FALSE(members.contains(Dictionary{{u"b", 2}, {u"a", Array{2, 1}}}));
}

TEST_CASE("a set holds equal values once, in the order of their coming") {
    Set values{3, u"a", 3.0};
    values.add(Value());
    values.add(Array{1});
    values.add(Array{1});
    values.remove(u"a");
    CHECK(values.allObjects() == Array{3, Array{1}});
    CHECK(values.contains(Array{1}));
    CHECK(values == Set{Array{1}, 3});
    CHECK_FALSE(values == Set{Array{2}, 3});
}

}  // namespace QZCore
