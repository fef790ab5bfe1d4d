#include <unicode/locid.h>

#include "QZCore/platform/user_locales.h"
#include "platform/locale_direction.h"

namespace QZCore {

bool userLanguageRunsRightToLeft() {
    const auto locales = sharedUserLocales();
    const std::vector<String> languages = locales->preferredLanguages();
    const String language = languages.empty() ? locales->currentLocale() : languages.front();
    return icu::Locale::createCanonical(toUTF8(language).c_str()).isRightToLeft() != 0;
}

}  // namespace QZCore
