#include "QZCore/codecs/formatting.h"

#include <locale.h>

#include <cmath>
#include <cstdio>
#include <random>

#include "support/printing.h"

namespace QZCore {
namespace {

/// One argument as C and as the library take it.
struct Argument {
    StringView conversions;
    const char* length;
    std::int64_t integer = 0;
    double real = 0;

    [[nodiscard]] bool isReal() const { return *length == '\0'; }
    [[nodiscard]] Value value() const { return isReal() ? Value(real) : Value(integer); }
};

constexpr Argument kArguments[] = {
    {u"di", "ll", 0},
    {u"di", "ll", -1},
    {u"di", "ll", INT64_MIN},
    {u"uxXo", "ll", 0},
    {u"uxXo", "ll", 255},
    {u"uxXo", "ll", INT64_MAX},
    {u"fFeEgGaA", "", 0, 0},
    {u"fFeEgGaA", "", 0, -2.5},
    {u"fFeEgGaA", "", 0, 1e300},
    {u"fFeEgGaA", "", 0, 1e-9},
    {u"fFeEgGaA", "", 0, INFINITY},
    {u"fFeEgGaA", "", 0, 123456.789},
};

/// What C prints in its own locale, whichever the process has.
std::string printed(const std::string& format, const Argument& argument) {
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    const locale_t before = uselocale(plain);
    char text[2000];
    const int length = argument.isReal()
                           ? std::snprintf(text, sizeof text, format.c_str(), argument.real)
                           : std::snprintf(text, sizeof text, format.c_str(),
                                           static_cast<long long>(argument.integer));
    uselocale(before);
    return {text, static_cast<std::size_t>(length)};
}

}  // namespace

TEST_CASE("directives for numbers print what C prints") {
    std::mt19937 random(3);
    for (int i = 0; i < 20'000; ++i) {
        const Argument& argument = kArguments[random() % std::size(kArguments)];
        const char16_t conversion = argument.conversions[random() % argument.conversions.size()];
        std::string format = "<%";
        for (const char flag : {'-', '+', ' ', '0'}) {
            if (random() % 4 == 0) format += flag;
        }
        const bool isOctal = conversion == u'o';  // C counts its "#" as a digit
        if (!argument.isReal() && !isOctal && random() % 3 == 0) format += '#';
        if (random() % 2 == 0) format += std::to_string(1 + random() % 30);
        if (random() % 2 == 0) format += "." + std::to_string(random() % 12);
        format += argument.length;
        format += static_cast<char>(conversion);
        format += '>';
        CAPTURE(format);
        const String result = stringWithFormat(fromUTF8(format), {argument.value()});
        REQUIRE(toUTF8(result) == printed(format, argument));
    }
}

TEST_CASE("directives for texts, positions, and what is no directive") {
    struct Row {
        const char* why;
        StringView format;
        std::vector<Value> arguments;
        StringView result;
    };
    const Row rows[] = {
        {"descriptions", u"%@ %@ %@", {u"a", 7, {}}, u"a 7 (null)"},
        {"strings and characters",
         u"%.2s%5s%c%C%c",
         {u"abc", u"d", 65, 0x1F600, u"xy"},
         u"ab    dA\U0001F600x"},
        {"positions", u"%2$@%1$@%@", {u"a", u"b"}, u"baa"},
        {"a width and a precision among the arguments",
         u"[%*d|%-*d|%.*f]",
         {4, 1, -3, 2, 1, 2.25},
         u"[   1|2  |2.2]"},
        {"too few arguments", u"%@,%d,%f,%s|", {}, u"(null),0,0.000000,|"},
        {"other types", u"%d %f %x", {u"12 apples", u"1.5", u"255"}, u"12 1.500000 ff"},
        {"no directive", u"100%, %y %-", {1}, u"100%, %y %-"},
        {"percent signs", u"%%%d%%", {5}, u"%5%"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(stringWithFormat(row.format, row.arguments) == row.result);
    }
    CHECK(stringWithFormat(u"%99999999999d", {1}).size() == 1000);
    CHECK(stringWithFormat(u"%.*f", {INT64_MAX, 1.0}).size() == 1002);
    CHECK(stringWithFormat(u"%*d", {INT64_MIN, 1}).size() == 1000);
}

}  // namespace QZCore
