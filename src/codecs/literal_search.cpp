#include "codecs/literal_search.h"

namespace QZCore {

LiteralSearch::LiteralSearch(StringView text, StringView pattern) : text_(text), pattern_(pattern) {
    const bool canOccur = !pattern.empty() && pattern.size() <= text.size();
    if (canOccur) {
        findBorders();
    } else {
        at_ = text.size();
    }
}

void LiteralSearch::findBorders() {
    borders_.assign(pattern_.size(), 0);
    std::size_t border = 0;
    for (std::size_t i = 1; i < pattern_.size(); ++i) {
        while (border > 0 && pattern_[i] != pattern_[border]) border = borders_[border - 1];
        if (pattern_[i] == pattern_[border]) ++border;
        borders_[i] = border;
    }
}

std::size_t LiteralSearch::next() {
    if (matched_ > 0 && matched_ == pattern_.size()) matched_ = borders_[matched_ - 1];
    while (at_ < text_.size()) {
        if (matched_ == 0) {
            at_ = text_.find(pattern_.front(), at_);
            if (at_ == StringView::npos) break;
        }
        while (matched_ > 0 && text_[at_] != pattern_[matched_]) matched_ = borders_[matched_ - 1];
        if (text_[at_] == pattern_[matched_]) ++matched_;
        ++at_;
        if (matched_ == pattern_.size()) return at_ - matched_;
    }
    at_ = text_.size();
    return kNotFound;
}

String replacingOccurrences(StringView text, StringView pattern, StringView replacement) {
    String result;
    LiteralSearch search(text, pattern);
    std::size_t copied = 0;
    for (std::size_t found; (found = search.next()) != kNotFound; search.skipOverlaps()) {
        result.append(text.substr(copied, found - copied)).append(replacement);
        copied = found + pattern.size();
    }
    return result.append(text.substr(copied));
}

}  // namespace QZCore
