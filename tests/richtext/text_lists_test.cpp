#include "QZCore/richtext/text_lists.h"

#include <doctest/doctest.h>

#include <random>

namespace QZCore {

TEST_CASE("text lists are equal when the same lists were put into each other") {
    std::mt19937 random(1);
    std::vector<TextLists> stacks{{}, {{u"a"}}, {{u"b"}, {u"a"}}};
    std::vector<std::vector<TextList>> plain{{}, {{u"a"}}, {{u"b"}, {u"a"}}};
    while (stacks.size() < 60) {
        const std::size_t around = random() % stacks.size();
        const TextList list{random() % 2 == 0 ? u"a" : u"b"};
        stacks.push_back(stacks[around].with(list));
        plain.push_back(plain[around]);
        plain.back().push_back(list);
    }
    for (std::size_t i = 0; i < stacks.size(); ++i) {
        CHECK(stacks[i].lists() == plain[i]);
        CHECK(stacks[i].size() == plain[i].size());
        CHECK(stacks[i].empty() == plain[i].empty());
        for (std::size_t j = 0; j < stacks.size(); ++j) {
            const bool areEqual = plain[i] == plain[j];
            CHECK((stacks[i] == stacks[j]) == areEqual);
            if (areEqual) CHECK(hashOf(stacks[i]) == hashOf(stacks[j]));
        }
    }
}

}  // namespace QZCore
