#include <limits>

#include "QZCore/dates/file_size_formatter.h"
#include "QZCore/dates/number_formatter.h"
#include "QZCore/dates/rating_formatter.h"
#include "support/locale_scope.h"
#include "support/printing.h"

namespace QZCore {

using testing::LocaleScope;

TEST_CASE("sizes of files have decimal units") {
    struct Row {
        const char* why;
        Value size;
        StringView text;
    };
    const Row rows[] = {
        {"nothing", 0, u"0 bytes"},
        {"a fraction is cut off", 999.9, u"999 bytes"},
        {"one kilobyte", 1000, u"1 KB"},
        {"a half up", 1500, u"2 KB"},
        {"below a half", 999'499, u"999 KB"},
        {"not promoted", 999'500, u"1000 KB"},
        {"megabytes", 1'000'000, u"1.0 MB"},
        {"a half that a double would round down", 1'250'000, u"1.3 MB"},
        {"not promoted", 999'999'999, u"1000.0 MB"},
        {"gigabytes", 1'000'000'000, u"1.0 GB"},
        {"a half", 2'250'000'000LL, u"2.3 GB"},
        {"the largest", UINT64_MAX, u"18446744073.7 GB"},
        {"a negative one, read as unsigned", -1, u"18446744073.7 GB"},
        {"a string", u"12 apples", u"12 apples"},
        {"neither", Date{1}, u""},
        {"nothing", Value(), u""},
    };
    const QZFileSizeFormatter formatter;
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(formatter.stringForObjectValue(row.size) == row.text);
    }
}

TEST_CASE("ratings are stars, and neither they nor sizes can be typed") {
    const QZRatingFormatter ratings;
    CHECK(ratings.stringForObjectValue(3.9) == u"\u2605\u2605\u2605");
    CHECK(ratings.stringForObjectValue(7).size() == 7);
    CHECK(ratings.stringForObjectValue(-1).empty());
    CHECK(ratings.stringForObjectValue(u"3").empty());
    CHECK(ratings.stringForObjectValue(INT64_MAX).size() == std::size_t{1} << 24);

    Value object(5);
    String why;
    CHECK_FALSE(ratings.getObjectValue(object, u"3", &why));
    CHECK(why == u"Unable to set the rating.");
    CHECK_FALSE(QZFileSizeFormatter().getObjectValue(object, u"3", &why));
    CHECK(why == u"Unable to set the file size.");
    CHECK(object == Value(5));
}

TEST_CASE("numbers are written in the style of the locale") {
    using Style = NumberFormatterStyle;
    struct Row {
        StringView locale;
        Style style;
        Value number;
        StringView text;
    };
    const Row rows[] = {
        {u"en_US", Style::None, 1234.6, u"1235"},
        {u"en_US", Style::Decimal, 1234.5678, u"1,234.568"},
        {u"de_DE", Style::Decimal, -1234.5, u"-1.234,5"},
        {u"en_US", Style::Decimal, UINT64_MAX, u"18,446,744,073,709,551,615"},
        {u"en_US", Style::Decimal, INT64_MIN, u"-9,223,372,036,854,775,808"},
        {u"en_US", Style::Currency, 1234.5, u"$1,234.50"},
        {u"en_US", Style::Percent, 0.5, u"50%"},
        {u"en_US", Style::Scientific, 1234.5, u"1.2345E3"},
        {u"en_US", Style::Decimal, u"42", u""},
    };
    for (const Row& row : rows) {
        NumberFormatter formatter(row.locale);
        formatter.setNumberStyle(row.style);
        CAPTURE(row.text);
        CHECK(formatter.stringForObjectValue(row.number) == row.text);
        if (row.text.empty() || row.style == Style::None || row.number.doubleValue() == 1234.5678)
            continue;
        if (row.number.kind() == ValueKind::Unsigned) continue;  // read as a real number
        CHECK(formatter.numberFromString(row.text) == row.number);
    }
    NumberFormatter decimals(u"en_US");
    decimals.setMinimumFractionDigits(3);
    decimals.setMaximumFractionDigits(-5);
    CHECK(decimals.stringFromNumber(2) == u"2.000");
}

TEST_CASE("a number is read from a whole text") {
    const LocaleScope american(u"en_US");
    NumberFormatter formatter;
    formatter.setNumberStyle(NumberFormatterStyle::Decimal);
    CHECK(formatter.numberFromString(u" +5\n").kind() == ValueKind::Integer);
    CHECK(formatter.numberFromString(u"1,234.5") == Value(1234.5));
    CHECK(formatter.numberFromString(u"\u0661\u0662") == Value(12));
    for (const StringView text : {u"", u" ", u"12abc", u"+-5", u"NaN", u"--1", u"abc"}) {
        CAPTURE(text);
        CHECK(formatter.numberFromString(text).isAbsent());
    }
    CHECK(formatter.numberFromString(String(1'000'000, u'1')).isAbsent());

    Value object;
    String why;
    formatter.setMinimum(1);
    formatter.setMaximum(10);
    CHECK_FALSE(formatter.getObjectValue(object, u"0", &why));
    CHECK(why == u"The number is too small.");
    CHECK_FALSE(formatter.getObjectValue(object, u"10.5", &why));
    CHECK(why == u"The number is too large.");
    CHECK_FALSE(formatter.getObjectValue(object, u"ten", &why));
    CHECK(why == u"The number cannot be read.");
    CHECK(object.isAbsent());
    Range range{2, 100};
    CHECK(formatter.getObjectValue(object, u"a 7 b", range));
    CHECK(object == Value(7));
    CHECK(range == Range{2, 1});
}

TEST_CASE("a clamping number formatter takes the nearest number and never rejects") {
    const Value absent;
    const Value notANumber(std::numeric_limits<double>::quiet_NaN());
    struct Row {
        const char* why;
        Value minimum, maximum;
        StringView text;
        Value result;
    };
    const Row rows[] = {
        {"below", 1, 10, u"0", 1},
        {"above", 1, 10, u"12", 10},
        {"within", 1, 10, u"7.5", 7.5},
        {"unreadable", 1, 10, u"abc", 1},
        {"unreadable, no minimum", absent, 10, u"abc", 10},
        {"unreadable, no bounds", absent, absent, u"12abc", 0},
        {"bounds that are not-a-number", notANumber, notANumber, u"abc", 0},
        {"such bounds do not clamp", notANumber, notANumber, u"-5", -5},
        {"the minimum goes first", 10, 1, u"5", 10},
        {"untouched", 1, 10, u"", 77},
        {"exact where doubles are not", INT64_MAX, absent, u"9223372036854775806", INT64_MAX},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        QZNumberFormatter formatter(u"en_US");
        formatter.setMinimum(row.minimum);
        formatter.setMaximum(row.maximum);
        Value object(77);
        CHECK(formatter.getObjectValue(object, row.text));
        CHECK(object == row.result);
        Value again(77);
        Range range{0, row.text.size()};
        CHECK(formatter.getObjectValue(again, row.text, range));
        if (row.text != u"12abc") CHECK(again == row.result);
    }
}

}  // namespace QZCore
