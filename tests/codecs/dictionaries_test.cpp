#include "QZCore/codecs/dictionaries.h"

#include "support/printing.h"
#include "support/random_texts.h"
#include "support/random_value.h"
#include "support/small_stack.h"

namespace QZCore {
namespace {

/// The entries joined to a text, each key and its value by `between`.
String joined(const Dictionary& dictionary, StringView between, StringView behind) {
    String text;
    for (const auto& [key, value] : dictionary) {
        if (!text.empty()) text += behind;
        text.append(key.stringValue()).append(between).append(value.stringValue());
    }
    return text;
}

Value mutableChain(int levels, const Value& innermost) {
    Value chain = innermost;
    for (int i = 0; i < levels; ++i) chain = Value::mutableDictionary({{u"a", chain}});
    return chain;
}

}  // namespace

TEST_CASE("key-value texts give the pairs that fit, and pass over the others") {
    const auto query = dictionaryWithQueryString;
    const auto pairs = [](StringView string, StringView sign = u":", StringView between = u";") {
        return dictionaryWithKeyObjectString(string, sign, between);
    };
    const auto turns = [](StringView string, StringView separator = u"|") {
        return dictionaryWithKeyObjectString(string, separator);
    };
    struct Row {
        const char* why;
        Dictionary made, expected;
    };
    const Row rows[] = {
        {"one pair, too many signs, no sign", query(u"a=1&b=2=3&c"), {{u"a", u"1"}}},
        {"empty keys and values", query(u"=&a=&=1"), {{u"", u"1"}, {u"a", u""}}},
        {"a later key replaces", query(u"a=1&b=2&a=3"), {{u"a", u"3"}, {u"b", u"2"}}},
        {"nothing trimmed or decoded", query(u" a = %20+"), {{u" a ", u" %20+"}}},
        {"unpaired surrogates", query(u"\xD800=\xDC00"), {{u"\xD800", u"\xDC00"}}},

        {"an empty value", pairs(u" a : 1 ; b : ; c : 3"), {{u"a", u"1"}, {u"c", u"3"}}},
        {"an empty key, too many signs", pairs(u"\t :2;a:1:2;a:3; a :4"), {{u"a", u"4"}}},
        {"inner blanks and line ends", pairs(u"a b\t:\u00A0c\n;"), {{u"a b", u"c\n"}}},
        {"long separators", pairs(u"a->1||b->2", u"->", u"||"), {{u"a", u"1"}, {u"b", u"2"}}},
        {"overlapping separators", pairs(u"a:::1", u"::"), {{u"a", u":1"}}},
        {"an empty pair separator", pairs(u"a:1", u":", u""), {{u"a", u"1"}}},
        {"an empty key-value separator", pairs(u"a:1", u""), {}},

        {"by turns", turns(u"a|1|b|2"), {{u"a", u"1"}, {u"b", u"2"}}},
        {"a separator at the start", turns(u"|a|1"), {{u"a", u"1"}}},
        {"only the first of them", turns(u"||a"), {{u"", u"a"}}},
        {"an odd number", turns(u"a|1|b"), {}},
        {"an empty text", turns(u""), {}},
        {"an empty separator", turns(u"ab", u""), {}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(row.made == row.expected);
    }
}

TEST_CASE("an array of keys and values by turns") {
    CHECK(dictionaryWithKeyObjectArray({}).empty());
    CHECK(dictionaryWithKeyObjectArray({u"a", 1, u"b"}).empty());
    CHECK(dictionaryWithKeyObjectArray({u"a", 1, 2, u"b", u"a", 3}) ==
          Dictionary{{u"a", 3}, {2, u"b"}});
    CHECK(dictionaryWithKeyObjectArray({u"a", Value(), Value(), 1}).empty());
    const Value key = Value::mutableArray({1});
    const Dictionary made = dictionaryWithKeyObjectArray({key, 1});
    Dictionary merged;
    mergeWithDictionary(merged, {{key, 1}});
    key.mutableArray()->clear();  // a stored key cannot change
    CHECK(made == Dictionary{{Array{1}, 1}});
    CHECK(merged == made);
}

TEST_CASE("pairs that were read can be joined and read again") {
    testing::RandomTexts random(u"ab=&: \t\n");
    for (int round = 0; round < 20'000; ++round) {
        const String text = random.next(30);
        CAPTURE(text);
        const Dictionary query = dictionaryWithQueryString(text);
        REQUIRE(dictionaryWithQueryString(joined(query, u"=", u"&")) == query);
        const Dictionary pairs = dictionaryWithKeyObjectString(text, u":", u"&");
        REQUIRE(dictionaryWithKeyObjectString(joined(pairs, u" : ", u"&\t"), u":", u"&") == pairs);
        const Dictionary turns = dictionaryWithKeyObjectString(text, u"=");
        REQUIRE(dictionaryWithKeyObjectString(u"=" + joined(turns, u"=", u"="), u"=") == turns);
    }
}

TEST_CASE("keys are found by an equal or the very same value") {
    const Value first = u"long enough";
    const Value second = u"long enough";
    const Dictionary dictionary{{u"a", 1}, {u"b", first}, {u"c", second}, {u"d", 1.0}};
    CHECK(keyForObject(dictionary, second) == Value(u"b"));
    CHECK(keyForIdenticalObject(dictionary, second) == Value(u"c"));
    CHECK(keyForIdenticalObject(dictionary, u"long enough").isAbsent());
    CHECK(keyForObject(dictionary, 1.0) == Value(u"a"));
    CHECK(keyForIdenticalObject(dictionary, 1.0) == Value(u"d"));
    CHECK(keyForObject(dictionary, 2).isAbsent());
    CHECK(keyForObject(dictionary, Value()).isAbsent());
}

TEST_CASE("a subset is unchanged when every value is equal") {
    const Dictionary whole{{u"b", 2}, {u"a", Array{1}}};
    CHECK(isUnchangedSubsetOf({}, {}));
    CHECK(isUnchangedSubsetOf({}, whole));
    CHECK(isUnchangedSubsetOf({{u"a", Array{1}}}, whole));
    CHECK_FALSE(isUnchangedSubsetOf({{u"a", Array{2}}}, whole));
    CHECK_FALSE(isUnchangedSubsetOf(whole, {{u"a", Array{1}}}));
}

TEST_CASE("a merged dictionary holds both, and the argument wins") {
    testing::RandomValues random(2);
    for (int round = 0; round < 200; ++round) {
        const Dictionary a{{u"a", random.tree(1)}, {u"b", random.tree(1)}, {1, 2}};
        const Dictionary b{{u"b", random.tree(1)}, {u"c", random.tree(1)}};
        const Dictionary merged = dictionaryByMergingWithDictionary(a, b);
        REQUIRE(isUnchangedSubsetOf(b, merged));
        REQUIRE(merged == Dictionary{{u"a", a.objectForKey(u"a")},
                                     {u"b", b.objectForKey(u"b")},
                                     {1, 2},
                                     {u"c", b.objectForKey(u"c")}});
        Dictionary inPlace = a;
        mergeWithDictionary(inPlace, b);
        REQUIRE(inPlace == merged);  // nothing in `a` is mutable
    }
}

TEST_CASE("only mutable nested dictionaries are merged") {
    const Value deep = Value::mutableDictionary({{u"x", 1}, {u"y", 2}});
    const Value open = Value::mutableDictionary({{u"deep", deep}, {u"kept", 1}});
    const Value fixed = Dictionary{{u"kept", 1}};
    const Value list = Value::mutableArray({1});
    Dictionary target{{u"open", open}, {u"fixed", fixed}, {u"scalar", 1}, {u"list", list}};
    const Value added = Value::mutableDictionary({{u"new", 3}});
    mergeWithDictionary(target,
                        {{u"open", Dictionary{{u"deep", Dictionary{{u"y", 3}}}, {u"list", list}}},
                         {u"fixed", Dictionary{{u"new", 2}}},
                         {u"scalar", added},
                         {u"list", Array{2}}});
    CHECK(target.objectForKey(u"open").isIdentical(open));
    CHECK(open == Value(Dictionary{{u"deep", deep}, {u"kept", 1}, {u"list", list}}));
    CHECK(deep == Value(Dictionary{{u"x", 1}, {u"y", 3}}));
    CHECK(target.objectForKey(u"fixed") == Value(Dictionary{{u"new", 2}}));
    CHECK(target.objectForKey(u"scalar").isIdentical(added));
    CHECK(target.objectForKey(u"list") == Value(Array{2}));
    CHECK(list == Value(Array{1}));
    mergeWithDictionary(target, {{u"open", 1}});
    CHECK(target.objectForKey(u"open") == Value(1));

    // One dictionary under several keys takes them in order.
    const Value shared = Value::mutableDictionary({});
    const Value first = Dictionary{{u"x", 1}};
    target = {{u"a", shared}, {u"b", shared}, {u"c", shared}};
    mergeWithDictionary(target, {{u"a", first}, {u"b", Dictionary{{u"x", 2}}}, {u"c", first}});
    CHECK(shared == first);
}

TEST_CASE("dictionaries that are deep, shared or inside themselves are merged to an end") {
    constexpr int kLevels = 200'000;
    testing::onSmallStack([] {
        Dictionary target{{u"a", mutableChain(kLevels, Value::mutableDictionary({}))}};
        mergeWithDictionary(target, {{u"a", mutableChain(kLevels, Dictionary{{u"x", 1}})}});
        CHECK(Value(target) ==
              Value(Dictionary{{u"a", mutableChain(kLevels, Dictionary{{u"x", 1}})}}));
    });

    const Value circle = Value::mutableDictionary({});
    const Value other = Value::mutableDictionary({{u"x", 1}});
    circle.mutableDictionary()->setObject(circle, u"again");
    other.mutableDictionary()->setObject(other, u"again");
    mergeWithDictionary(*circle.mutableDictionary(), *other.dictionary());
    CHECK(circle.dictionary()->objectForKey(u"x") == Value(1));
    // What is being merged may take itself apart.
    mergeWithDictionary(*other.mutableDictionary(),
                        {{u"again", Dictionary{{u"x", 2}, {u"again", 3}}}});
    CHECK(*other.dictionary() == Dictionary{{u"x", 2}, {u"again", 3}});
    circle.mutableDictionary()->removeAllObjects();

    Value shared = Value::mutableDictionary({{u"x", 1}});
    Value twice = Dictionary{{u"x", 2}};
    for (int i = 0; i < 100; ++i) {
        shared = Value::mutableDictionary({{u"a", shared}, {u"b", shared}});
        twice = Dictionary{{u"a", twice}, {u"b", twice}};
    }
    Dictionary target{{u"a", shared}};
    mergeWithDictionary(target, {{u"a", twice}});
    CHECK(Value(target) == Value(Dictionary{{u"a", twice}}));
}

TEST_CASE("keys and values change places, and back") {
    CHECK(dictionaryReversingKeysAndObjects({{u"a", 1}, {u"b", u"c"}, {u"d", 1.0}}) ==
          Dictionary{{1, u"d"}, {u"c", u"b"}});
    testing::RandomValues random(9);
    Dictionary dictionary;
    for (int i = 0; i < 1000; ++i) dictionary.setObject(Array{i, random.tree(1)}, random.text());
    const Dictionary reversed = dictionaryReversingKeysAndObjects(dictionary);
    CHECK(reversed.count() == dictionary.count());
    CHECK(dictionaryReversingKeysAndObjects(reversed) == dictionary);
}

}  // namespace QZCore
