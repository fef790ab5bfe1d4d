// The user's locale and languages.
//
// A locale is named by its identifier, a language and perhaps a script, a
// country and keywords: "de", "de_CH", "zh-Hant-TW", "th_TH@calendar=gregorian".
// Hyphens and underscores mean the same. Every operation may be called from any
// thread.
#pragma once

#include <memory>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// What the user has chosen as language and as regional formats.
class QZ_EXPORT UserLocales {
public:
    virtual ~UserLocales();

    /// The locale by whose customs dates and numbers are written.
    [[nodiscard]] virtual String currentLocale() const = 0;

    /// The languages that the user reads, the preferred one first. May be empty.
    [[nodiscard]] virtual std::vector<String> preferredLanguages() const = 0;
};

/// What the process's environment says, read once: the locale of LC_ALL, LC_TIME
/// or LANG ("en_US_POSIX" when that is "C" or nothing), and the languages of
/// LANGUAGE, or that of LC_ALL, LC_MESSAGES or LANG. An application or a test
/// may set another source.
[[nodiscard]] QZ_EXPORT std::shared_ptr<const UserLocales> sharedUserLocales();

/// Makes `locales` the source in use and returns the one set before. An empty
/// pointer stands for the default, in both directions.
QZ_EXPORT std::shared_ptr<const UserLocales> setSharedUserLocales(
    std::shared_ptr<const UserLocales> locales);

}  // namespace QZCore
