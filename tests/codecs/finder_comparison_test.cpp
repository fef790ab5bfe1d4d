#include <array>
#include <random>

#include "QZCore/codecs/comparing.h"
#include "support/preference_setting.h"
#include "support/printing.h"
#include "support/random_texts.h"

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
    std::mt19937 random(7);
    // Lengths next to the multiples of the pieces in which they are compared.
    constexpr std::array<std::size_t, 8> kLengths{1, 252, 253, 254, 255, 506, 507, 760};
    const auto number = [&] {
        String digits(kLengths[random() % kLengths.size()], u'0');
        digits.front() = static_cast<char16_t>(u'1' + random() % 2);
        digits[random() % digits.size()] = u'3';
        digits.back() = static_cast<char16_t>(u'1' + random() % 2);
        return digits;
    };
    for (int i = 0; i < 5'000; ++i) {
        const String a = number();
        const String b = number();
        const bool longer = a.size() > b.size() || (a.size() == b.size() && a > b);
        const int expected = a == b ? 0 : (longer ? 1 : -1);
        const String zeros(random() % 300, u'0');
        REQUIRE(finderFileComparison(u"n" + zeros + a + u".x", u"n" + b + u".x", u"") == expected);
    }
}

TEST_CASE("the order of file names is transitive, and takes linear time over marks") {
    testing::RandomTexts texts(u"aAbé\u0301\u0323 -.0129\u0660\xD800\xDC00\u00AD");
    for (int i = 0; i < 20'000; ++i) {
        const String a = texts.next(8);
        const String b = texts.next(8);
        const String c = texts.next(8);
        const int order = finderFileComparison(a, b, u"de");
        REQUIRE(order == -finderFileComparison(b, a, u"de"));
        if (order <= 0 && finderFileComparison(b, c, u"de") <= 0)
            REQUIRE(finderFileComparison(a, c, u"de") <= 0);
    }
    String marks = u"a";
    while (marks.size() < 1'000'000) marks += u"\u0301\u0316";
    CHECK(finderFileComparison(marks, marks, u"") == 0);
}

}  // namespace QZCore
