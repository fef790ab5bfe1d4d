#include "platform/icu_search.h"

#include <algorithm>

namespace QZCore {

namespace {

// The budget for a text of `size` units, as the public header states it.
std::int32_t limitFor(std::size_t size, std::int32_t budget) {
    constexpr std::size_t kTextUnitsForOneOfWork = 1000;
    const auto growth =
        static_cast<std::int64_t>(std::min(size, kLongestRegexText) / kTextUnitsForOneOfWork);
    return static_cast<std::int32_t>(std::min<std::int64_t>(budget + growth, INT32_MAX));
}

StringView partInRange(StringView text, Range range) {
    const Range part = clampedRange(range, text.size());
    return text.substr(part.location, part.length);
}

}  // namespace

RegexDeadline::RegexDeadline(std::int32_t milliseconds)
    : end_(Clock::now() + std::chrono::milliseconds(milliseconds)) {}

void RegexDeadline::watch(icu::RegexMatcher& matcher, UErrorCode& status) {
    matcher.setFindProgressCallback(continueAtStart, this, status);
    matcher.setMatchCallback(continueAtSteps, this, status);
}

UBool U_CALLCONV RegexDeadline::continueAtStart(const void* context, std::int64_t) {
    // Asking at every start would cost more than most starts do.
    constexpr unsigned kStartsBetweenQuestions = 64;
    auto& deadline = *static_cast<RegexDeadline*>(const_cast<void*>(context));
    return ++deadline.starts_ % kStartsBetweenQuestions != 0 || deadline.isAhead();
}

UBool U_CALLCONV RegexDeadline::continueAtSteps(const void* context, std::int32_t) {
    return static_cast<const RegexDeadline*>(context)->isAhead();
}

RegexSearch::RegexSearch(const icu::RegexPattern& engine, std::int32_t budget, StringView text,
                         Range range)
    : RegexSearch(engine, limitFor(partInRange(text, range).size(), budget),
                  partInRange(text, range), clampedRange(range, text.size()).location) {}

RegexSearch::RegexSearch(const icu::RegexPattern& engine, std::int32_t limit, StringView part,
                         std::size_t offset)
    : offset_(offset), deadline_(limit) {
    if (part.size() > kLongestRegexText) {
        status_ = U_INDEX_OUTOFBOUNDS_ERROR;
        return;
    }
    utext_openUChars(&text_, part.data(), static_cast<std::int64_t>(part.size()), &status_);
    matcher_.reset(engine.matcher(status_));
    if (U_FAILURE(status_)) return;
    matcher_->reset(&text_);
    matcher_->setTimeLimit(limit, status_);
    deadline_.watch(*matcher_, status_);
}

RegexSearch::~RegexSearch() { utext_close(&text_); }

bool RegexSearch::findNext() {
    return U_SUCCESS(status_) && matcher_->find(status_) && U_SUCCESS(status_);
}

bool RegexSearch::matchAtStart() {
    return U_SUCCESS(status_) && matcher_->lookingAt(status_) && U_SUCCESS(status_);
}

RegexMatch RegexSearch::match() {
    const std::int32_t groups = matcher_->groupCount();
    RegexMatch found;
    found.groups.reserve(static_cast<std::size_t>(groups) + 1);
    for (std::int32_t i = 0; i <= groups; ++i) {
        const std::int64_t start = matcher_->start64(i, status_);
        const std::int64_t end = matcher_->end64(i, status_);
        found.groups.push_back(start < 0 ? kNotFoundRange
                                         : Range{offset_ + static_cast<std::size_t>(start),
                                                 static_cast<std::size_t>(end - start)});
    }
    return found;
}

}  // namespace QZCore
