#include "QZCore/platform/user_locales.h"

#include <algorithm>
#include <cstdlib>
#include <initializer_list>

#include "platform/shared_service.h"

namespace QZCore {
namespace {

/// The first of the variables that is set to something.
std::string_view environment(std::initializer_list<const char*> names) {
    for (const char* name : names) {
        const char* value = std::getenv(name);
        if (value != nullptr && *value != '\0') return value;
    }
    return {};
}

/// A locale of the environment, as "de_DE.UTF-8@euro", without its encoding and
/// modifier; empty when it is none of people.
String localeNamed(std::string_view name) {
    name = name.substr(0, name.find_first_of(".@"));
    return name == "C" || name == "POSIX" ? String() : fromUTF8(name);
}

std::vector<String> localesNamed(std::string_view names) {
    std::vector<String> locales;
    while (!names.empty()) {
        const std::size_t end = std::min(names.find(':'), names.size());
        if (String locale = localeNamed(names.substr(0, end)); !locale.empty()) {
            locales.push_back(std::move(locale));
        }
        names.remove_prefix(std::min(end + 1, names.size()));
    }
    return locales;
}

class EnvironmentLocales final : public UserLocales {
public:
    EnvironmentLocales()
        : current_(localeNamed(environment({"LC_ALL", "LC_TIME", "LANG"}))),
          languages_(localesNamed(environment({"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}))) {
        if (current_.empty()) current_ = u"en_US_POSIX";
    }

    [[nodiscard]] String currentLocale() const override { return current_; }
    [[nodiscard]] std::vector<String> preferredLanguages() const override { return languages_; }

private:
    String current_;
    std::vector<String> languages_;
};

SharedService<const UserLocales>& sharedLocales() {
    static auto& service =
        *new SharedService<const UserLocales>(std::make_shared<EnvironmentLocales>());
    return service;
}

}  // namespace

UserLocales::~UserLocales() = default;

std::shared_ptr<const UserLocales> sharedUserLocales() { return sharedLocales().current(); }

std::shared_ptr<const UserLocales> setSharedUserLocales(
    std::shared_ptr<const UserLocales> locales) {
    return sharedLocales().replaceBy(std::move(locales));
}

}  // namespace QZCore
