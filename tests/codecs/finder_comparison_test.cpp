#include "QZCore/codecs/comparing.h"
#include "support/preference_setting.h"
#include "support/printing.h"

namespace QZCore {

TEST_CASE("file names sort as people expect") {
    struct Row {
        const char* why;
        StringView text, other, locale;
        int order;
    };
    const Row rows[] = {
        {"digits by value", u"file 2", u"file 10", u"", -1},
        {"case does not count", u"FILE", u"file", u"", 0},
        {"zeros before a number do not count", u"file 007", u"file 7", u"", 0},
        {"accents count", u"resume", u"résumé", u"", -1},
        {"marks in another order", u"e\u0301\u0323", u"e\u0323\u0301", u"", 0},
        {"digits of other scripts", u"\u0661\u0662", u"12", u"", 0},
        {"a letter that the language sorts at the end", u"ö", u"z", u"sv-SE", 1},
        {"the same letter elsewhere", u"ö", u"z", u"de_DE", -1},
        {"an unknown language", u"ö", u"z", u"no such language", -1},
        {"the C locale knows no cases either", u"FILE", u"file", u"en_US_POSIX", 0},
        {"the empty name comes first", u"", u"a", u"", -1},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(finderFileComparison(row.text, row.other, row.locale) == row.order);
        CHECK(finderFileComparison(row.other, row.text, row.locale) == -row.order);
    }
}

TEST_CASE("the locale of file names is a preference") {
    const testing::PreferenceSetting swedish(u"Locale", u"sv_SE");
    CHECK(finderFileComparison(u"ö", u"z") == 1);
    const testing::PreferenceSetting german(u"Locale", u"de_DE");
    CHECK(finderFileComparison(u"ö", u"z") == -1);
}

TEST_CASE("numbers of any length sort by value") {
    for (std::size_t length = 1; length < 800; ++length) {
        CAPTURE(length);
        const String nines(length, u'9');
        const String more = u"1" + String(length, u'0');
        REQUIRE(finderFileComparison(nines + u".x", more + u".x", u"") == -1);
        REQUIRE(finderFileComparison(u"n" + nines + u"2", u"n" + nines + u"1", u"") == 1);
        REQUIRE(finderFileComparison(String(length, u'0') + more, more, u"") == 0);
    }
}

TEST_CASE("a name of a great many marks is compared in linear time") {
    String marks = u"a";
    while (marks.size() < 1'000'000) marks += u"\u0301\u0316";
    CHECK(finderFileComparison(marks, marks, u"") == 0);
    CHECK(finderFileComparison(marks, u"a" + marks, u"") == -1);
}

}  // namespace QZCore
