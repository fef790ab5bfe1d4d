// A host application that writes its numbers with a decimal comma.
#pragma once

#include <doctest/doctest.h>

#include <clocale>
#include <string>

namespace QZCore::testing {

/// While it lives, the process uses a locale with a decimal comma, if the
/// machine has one.
class CommaLocale {
public:
    CommaLocale() : before_(std::setlocale(LC_ALL, nullptr)) {
        for (const char* name :
             {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "ru_RU.UTF-8"}) {
            if (std::setlocale(LC_ALL, name) != nullptr &&
                *std::localeconv()->decimal_point == ',') {
                return;
            }
        }
        MESSAGE("this machine has no locale with a decimal comma");
    }
    ~CommaLocale() { std::setlocale(LC_ALL, before_.c_str()); }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    std::string before_;
};

}  // namespace QZCore::testing
