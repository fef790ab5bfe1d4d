#include <cstdlib>

#include "QZCore/codecs/comparing.h"
#include "QZCore/foundation/preferences.h"
#include "platform/collation.h"

namespace QZCore {
namespace {

/// The locale that the environment names for collation.
std::string localeOfProcess() {
    for (const char* variable : {"LC_ALL", "LC_COLLATE", "LANG"}) {
        const char* name = std::getenv(variable);
        if (name != nullptr && *name != '\0') return name;
    }
    return {};
}

}  // namespace

int finderFileComparison(StringView text, StringView other) {
    const String preferred = Preferences::shared().stringForKey(u"Locale");
    return compareFileNames(text, other, preferred.empty() ? localeOfProcess() : toUTF8(preferred));
}

int finderFileComparison(StringView text, StringView other, StringView locale) {
    return compareFileNames(text, other, toUTF8(locale));
}

}  // namespace QZCore
