#include "richtext/rtf_definitions.h"

namespace QZCore {
void RtfLists::word(std::string_view name, RtfNumber number) {
    if (name == "list") lists_.emplace_back();
    if (lists_.empty()) return;
    std::vector<Level>& levels = lists_.back();
    if (name == "listid") {
        places_[number.value] = lists_.size() - 1;
    } else if (name == "listlevel") {
        if (levels.size() <= kDeepestRtfLevel) levels.emplace_back();
    } else if (levels.empty()) {
        return;
    } else if (name == "levelnfc" || name == "levelnfcn") {
        levels.back().numbering = number.value;
    } else if (name == "li") {
        levels.back().indent = number.length();
    } else if (name == "fi") {
        levels.back().firstIndent = number.length();
    }
}

void RtfLists::overrideWord(std::string_view name, RtfNumber number) {
    if (name == "listid") overridden_ = number.value;
    if (name == "ls") overrides_[number.value] = overridden_;
}

const std::vector<RtfLists::Level>& RtfLists::levelsOf(std::int32_t number) const {
    const auto list = overrides_.find(number);
    const auto place = list == overrides_.end() ? places_.end() : places_.find(list->second);
    return place == places_.end() ? none_ : lists_[place->second];
}

}  // namespace QZCore
