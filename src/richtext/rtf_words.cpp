#include "richtext/rtf_words.h"

#include <algorithm>
#include <unordered_map>

#include "richtext/rtf_underlines.h"
#include "richtext/rtf_word_tables.h"

namespace QZCore {
namespace {

using Words = std::unordered_map<std::string_view, RtfWord>;

const Words& allWords() {
    static const Words& words = *[] {
        auto* made = new Words;
        for (const auto table : {rtfCharacterWords(), rtfParagraphWords(), rtfDestinationWords()}) {
            for (const RtfWordRow& row : table) made->emplace(row.name, row.word);
        }
        return made;
    }();
    return words;
}

}  // namespace

std::int32_t RtfNumber::length() const {
    constexpr std::int32_t kMost = 1'000'000;
    return std::clamp(value, -kMost, kMost);
}

const RtfWord* rtfWordNamed(std::string_view name) {
    const auto word = allWords().find(name);
    return word == allWords().end() ? nullptr : &word->second;
}

}  // namespace QZCore
