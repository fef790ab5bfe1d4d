#include "richtext/rtf_definitions.h"

namespace QZCore {
void RtfLists::word(std::string_view name, RtfNumber number) {
    if (name == "list") {
        open_.clear();
    } else if (name == "listlevel") {
        if (open_.size() <= kDeepestRtfLevel) open_.emplace_back();
    } else if (name == "listid") {
        lists_[number.value] = open_;
    } else if (open_.empty()) {
        return;
    } else if (name == "levelnfc" || name == "levelnfcn") {
        open_.back().numbering = number.value;
    } else if (name == "li") {
        open_.back().indent = number.length();
    } else if (name == "fi") {
        open_.back().firstIndent = number.length();
    }
}

void RtfLists::overrideWord(std::string_view name, RtfNumber number) {
    if (name == "listid") overridden_ = number.value;
    if (name == "ls") overrides_[number.value] = overridden_;
}

const std::vector<RtfLists::Level>& RtfLists::levelsOf(std::int32_t number) const {
    const auto list = overrides_.find(number);
    const auto levels = list == overrides_.end() ? lists_.end() : lists_.find(list->second);
    return levels == lists_.end() ? none_ : levels->second;
}

}  // namespace QZCore
