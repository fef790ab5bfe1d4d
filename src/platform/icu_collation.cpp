#include <unicode/ucol.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <unordered_map>

#include "platform/bounded_marks.h"
#include "platform/collation.h"
#include "platform/long_numbers.h"

namespace QZCore {
namespace {

/// Whether upper and lower case differ to the collator as letters do: the
/// collation of the C locale is no user's.
bool isForPrograms(const UCollator* collator) {
    UErrorCode status = U_ZERO_ERROR;
    const char* locale = ucol_getLocaleByType(collator, ULOC_ACTUAL_LOCALE, &status);
    return locale != nullptr && std::string_view(locale).ends_with("POSIX");
}

icu::LocalUCollatorPointer openCollator(const char* locale) {
    UErrorCode status = U_ZERO_ERROR;
    return icu::LocalUCollatorPointer(ucol_open(locale, &status));
}

std::shared_ptr<const UCollator> makeCollator(const std::string& locale) {
    icu::LocalUCollatorPointer collator = openCollator(locale.c_str());
    if (collator.isNull() || isForPrograms(collator.getAlias())) collator = openCollator("");
    if (collator.isNull()) return nullptr;
    UErrorCode status = U_ZERO_ERROR;
    ucol_setStrength(collator.getAlias(), UCOL_SECONDARY);
    ucol_setAttribute(collator.getAlias(), UCOL_NUMERIC_COLLATION, UCOL_ON, &status);
    ucol_setAttribute(collator.getAlias(), UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
    return {collator.orphan(), [](const UCollator* it) { ucol_close(const_cast<UCollator*>(it)); }};
}

/// The collators that were used last; making one takes longer than most
/// comparisons.
class CollatorCache {
public:
    std::shared_ptr<const UCollator> find(const std::string& locale) {
        const std::lock_guard lock(mutex_);
        const auto found = collators_.find(locale);
        if (found != collators_.end()) return found->second;
        if (collators_.size() == kMostCollators) collators_.clear();
        return collators_.emplace(locale, makeCollator(locale)).first->second;
    }

private:
    static constexpr std::size_t kMostCollators = 16;
    std::mutex mutex_;
    std::unordered_map<std::string, std::shared_ptr<const UCollator>> collators_;
};

/// A text in the form that a collator compares fast and by the value of its
/// numbers. Copied only where it differs from the text.
class CollatableText {
public:
    explicit CollatableText(StringView text)
        : bounded_(withBoundedMarks(text)),
          rewritten_(withLongNumbersInPieces(bounded_ ? *bounded_ : text)),
          units_(rewritten_ ? *rewritten_
                 : bounded_ ? *bounded_
                            : text) {}
    CollatableText(const CollatableText&) = delete;
    CollatableText& operator=(const CollatableText&) = delete;

    [[nodiscard]] const char16_t* data() const { return units_.data(); }
    [[nodiscard]] std::int32_t length() const {
        return static_cast<std::int32_t>(std::min<std::size_t>(units_.size(), INT32_MAX));
    }

private:
    const std::optional<String> bounded_;
    const std::optional<String> rewritten_;
    const StringView units_;
};

}  // namespace

int compareFileNames(StringView a, StringView b, const std::string& locale) {
    static CollatorCache& cache = *new CollatorCache;
    const auto collator = cache.find(locale);
    // Only a machine without the engine's data has none.
    if (collator == nullptr) return std::clamp(a.compare(b), -1, 1);
    const CollatableText left(a);
    const CollatableText right(b);
    return ucol_strcoll(collator.get(), left.data(), left.length(), right.data(), right.length());
}

}  // namespace QZCore
