#include "QZCore/platform/user_locales.h"

#include "platform/locale_direction.h"
#include "support/locale_scope.h"
#include "support/printing.h"

namespace QZCore {

using testing::LocaleScope;

TEST_CASE("the first language decides on the direction of writing, else the locale") {
    struct Row {
        StringView locale;
        std::vector<String> languages;
        bool runsRightToLeft;
    };
    const Row rows[] = {
        {u"de_DE", {}, false},     {u"he_IL", {}, true}, {u"ar_EG", {u"en-GB", u"ar"}, false},
        {u"en_US", {u"fa"}, true}, {u"?\0x", {}, false}, {u"uz-Arab", {}, true},
    };
    for (const Row& row : rows) {
        CAPTURE(row.locale);
        const LocaleScope user(row.locale, row.languages);
        CHECK(userLanguageRunsRightToLeft() == row.runsRightToLeft);
    }
    CHECK_FALSE(sharedUserLocales()->currentLocale().empty());
}

}  // namespace QZCore
