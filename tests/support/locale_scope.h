// Runs a test as a user of a locale.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "QZCore/platform/user_locales.h"

namespace QZCore::testing {

/// The user has one locale and reads some languages while this lives.
class LocaleScope {
public:
    explicit LocaleScope(StringView current, std::vector<String> languages = {})
        : before_(setSharedUserLocales(
              std::make_shared<Chosen>(String(current), std::move(languages)))) {}
    ~LocaleScope() { setSharedUserLocales(before_); }
    LocaleScope(const LocaleScope&) = delete;
    LocaleScope& operator=(const LocaleScope&) = delete;

private:
    struct Chosen final : UserLocales {
        Chosen(String current, std::vector<String> languages)
            : current_(std::move(current)), languages_(std::move(languages)) {}
        [[nodiscard]] String currentLocale() const override { return current_; }
        [[nodiscard]] std::vector<String> preferredLanguages() const override { return languages_; }

    private:
        String current_;
        std::vector<String> languages_;
    };

    std::shared_ptr<const UserLocales> before_;
};

}  // namespace QZCore::testing
