#include "QZCore/foundation/property_list.h"

#include <cmath>
#include <limits>
#include <memory>

#include "QZCore/foundation/dictionary.h"
#include "support/comma_locale.h"
#include "support/printing.h"
#include "support/random_value.h"
#include "support/small_stack.h"

namespace QZCore {
namespace {

std::string written(const Value& value) {
    const PropertyListData list = writePropertyList(value);
    CAPTURE(list.error);
    REQUIRE(list.data.has_value());
    return std::string(textOf(*list.data));
}

std::string listOf(std::string_view content) {
    return "<plist version=\"1.0\">" + std::string(content) + "</plist>";
}

/// Reads a copy of exactly the size of `bytes`, so that a read past the end is
/// a read past the block.
PropertyListResult readExactly(std::string_view bytes) {
    const auto copy = std::make_unique<std::uint8_t[]>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), copy.get());
    return readPropertyList({copy.get(), bytes.size()});
}

std::string repeated(std::string_view piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) text += piece;
    return text;
}

}  // namespace

TEST_CASE("what is written reads back as the same") {
    testing::RandomValues random(1);
    for (int i = 0; i < 2000; ++i) {
        const Value value = random.tree(4);
        const std::string first = written(value);
        const PropertyListResult result = readExactly(first);
        CAPTURE(first);
        REQUIRE(result.value == value);
        REQUIRE(written(result.value) == first);  // the kinds of numbers, too
    }
}

TEST_CASE("a list is written as these bytes") {
    Dictionary settings;
    settings.setObject(Array{1, 2.5, true}, u"numbers & more");
    settings.setObject(u"a<b>\r\n", u"text");
    settings.setObject(Array(), u"nothing");
    settings.setObject(Data{1, 2, 3, 4}, u"data");
    settings.setObject(Date{-1}, u"date");
    CHECK(written(settings) ==
          "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
          "<plist version=\"1.0\">\n"
          "<dict>\n"
          "\t<key>numbers &amp; more</key>\n"
          "\t<array>\n"
          "\t\t<integer>1</integer>\n"
          "\t\t<real>2.5</real>\n"
          "\t\t<true/>\n"
          "\t</array>\n"
          "\t<key>text</key>\n"
          "\t<string>a&lt;b&gt;&#13;\n</string>\n"
          "\t<key>nothing</key>\n"
          "\t<array/>\n"
          "\t<key>data</key>\n"
          "\t<data>AQIDBA==</data>\n"
          "\t<key>date</key>\n"
          "\t<date>1969-12-31T23:59:59Z</date>\n"
          "</dict>\n"
          "</plist>\n");
}

TEST_CASE("scalars are read in every form that others write") {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    struct Row {
        const char* why;
        std::string content;
        Value value;
    };
    const Row rows[] = {
        {"white space around a number", "<integer> 7\n</integer>", 7},
        {"plus sign", "<integer>+7</integer>", 7},
        {"smallest integer", "<integer>-9223372036854775808</integer>",
         std::numeric_limits<std::int64_t>::min()},
        {"largest integer", "<integer>18446744073709551615</integer>",
         std::numeric_limits<std::uint64_t>::max()},
        {"fraction", "<real>0.75</real>", 0.75},
        {"fraction without integer part", "<real>+.5</real>", 0.5},
        {"exponent", "<real>-1e3</real>", -1000.0},
        {"too large", "<real>-1e999</real>", -kInfinity},
        {"too small", "<real>1e-999</real>", 0.0},
        {"infinity", "<real>+infinity</real>", kInfinity},
        {"infinity in capitals", "<real>-INF</real>", -kInfinity},
        {"booleans with an end tag", "<true></true>", true},
        {"empty text", "<string/>", u""},
        {"comments and sections", "<string>a<!-- b --><![CDATA[<c>]]></string>", u"a<c>"},
        {"the five entities", "<string>&amp;&lt;&gt;&apos;&quot;</string>", u"&<>'\""},
        {"numbered characters", "<string>&#65;&#x1F600;</string>", u"A\U0001F600"},
        {"line ends", "<string>a\r\nb\rc</string>", u"a\nb\nc"},
        {"data in lines", "<data>\n\tAQ\n\tID\n\t</data>", Data{1, 2, 3}},
        {"empty data", "<data></data>", Data{}},
        {"empty containers", "<array><dict/><array></array></array>", Array{Dictionary(), Array()}},
        {"a later equal key", "<dict><key>a</key><true/><key>a</key><false/></dict>",
         Dictionary{{u"a", false}}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const PropertyListResult result = readExactly(listOf(row.content));
        CHECK(result.error == u"");
        CHECK(result.value.kind() == row.value.kind());
        CHECK(result.value == row.value);
    }
    CHECK(std::isnan(readExactly(listOf("<real>NaN</real>")).value.doubleValue()));
    CHECK(std::signbit(readExactly(listOf("<real>-0.0</real>")).value.doubleValue()));
}

TEST_CASE("what surrounds the list is read over") {
    for (const std::string& bytes : {
             "\xEF\xBB\xBF" + listOf("<true/>"),
             "<?xml version='1.0' encoding='utf-8'?>" + listOf("<true/>"),
             "<!DOCTYPE plist SYSTEM \"file:///dev/null\">\n" + listOf("<true/>"),
             "<!-- a --><?b c?>" + listOf(" <!-- d --> <true/> ") + "\n<!-- e -->\n",
         }) {
        CAPTURE(bytes);
        CHECK(readExactly(bytes).value == Value(true));
    }
}

TEST_CASE("a faulty list gives an error and nothing else") {
    struct Row {
        const char* why;
        std::string bytes;
    };
    const Row rows[] = {
        {"nothing", ""},
        {"only white space", " \n"},
        {"a text", "hello"},
        {"no list around the value", "<true/>"},
        {"an empty list", listOf("")},
        {"two values", listOf("<true/><true/>")},
        {"two lists", listOf("<true/>") + listOf("<true/>")},
        {"a list in the list", listOf(listOf("<true/>"))},
        {"bytes behind the list", listOf("<true/>") + "x"},
        {"unknown element", listOf("<set/>")},
        {"element in capitals", listOf("<True/>")},
        {"attribute", listOf("<string lang=\"de\">a</string>")},
        {"text between elements", listOf("<array>x</array>")},
        {"text in a boolean", listOf("<true>x</true>")},
        {"element in a text", listOf("<string>a<true/></string>")},
        {"element in a number", listOf("<integer><integer>1</integer></integer>")},
        {"key without value", listOf("<dict><key>a</key></dict>")},
        {"key after key", listOf("<dict><key>a</key><key>b</key><true/></dict>")},
        {"value without key", listOf("<dict><true/></dict>")},
        {"key in an array", listOf("<array><key>a</key></array>")},
        {"key outside", listOf("<key>a</key>")},
        {"no integer", listOf("<integer>abc</integer>")},
        {"empty integer", listOf("<integer/>")},
        {"sign alone", listOf("<integer>-</integer>")},
        {"two signs", listOf("<integer>+-1</integer>")},
        {"fraction in an integer", listOf("<integer>1.5</integer>")},
        {"too large integer", listOf("<integer>18446744073709551616</integer>")},
        {"too small integer", listOf("<integer>-9223372036854775809</integer>")},
        {"no real", listOf("<real>abc</real>")},
        {"empty real", listOf("<real> </real>")},
        {"decimal comma", listOf("<real>0,75</real>")},
        {"words after a real", listOf("<real>1 m</real>")},
        {"hexadecimal real", listOf("<real>0x1p3</real>")},
        {"foreign character in data", listOf("<data>A*==</data>")},
        {"padding missing", listOf("<data>AQ</data>")},
        {"padding in the middle", listOf("<data>AQ==AQ==</data>")},
        {"single symbol", listOf("<data>A===</data>")},
        {"unknown entity", listOf("<string>&bogus;</string>")},
        {"unknown entity with a type",
         "<!DOCTYPE plist SYSTEM \"a\">" + listOf("<string>&bogus;</string>")},
        {"declared entity",
         "<!DOCTYPE plist [<!ENTITY a \"b\">]>" + listOf("<string>&a;</string>")},
        {"file entity", "<!DOCTYPE plist [<!ENTITY a SYSTEM \"file:///etc/passwd\">]>" +
                            listOf("<string>&a;</string>")},
        {"declared nothing", "<!DOCTYPE plist []>" + listOf("<true/>")},
        {"lone surrogate", listOf("<string>&#xD800;</string>")},
        {"numbered control character", listOf("<string>&#1;</string>")},
        {"control character", listOf("<string>\x01</string>")},
        {"zero byte", listOf(std::string("<string>\0</string>", 18))},
        {"noncharacter", listOf("<string>&#xFFFF;</string>")},
        {"bytes that are not UTF-8", listOf("<string>\xC0\xAF</string>")},
        {"surrogate in UTF-8", listOf("<string>\xED\xA0\x80</string>")},
        {"UTF-16", std::string("\xFE\xFF\0<", 4)},
        {"another encoding",
         "<?xml version='1.0' encoding='ISO-8859-1'?>" + listOf("<string>\xE9</string>")},
        {"wrong end tag", listOf("<array><true/></dict>")},
        {"100,000 levels", listOf(repeated("<array>", 100'000))},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const PropertyListResult result = readExactly(row.bytes);
        CHECK(result.value.isAbsent());
        CHECK(result.error != u"");
    }
    CHECK(readExactly("<plist>\n<dict>\n<key>a</key>\n</dict></plist>").error ==
          u"line 4: a key without a value");
}

TEST_CASE("a cut-off list is no list") {
    testing::RandomValues random(2);
    const std::string whole = written(Array{random.tree(3), random.tree(3), Date{0}, 1.5});
    const std::size_t end = whole.rfind('>');
    for (std::size_t length = 0; length <= end; ++length) {
        REQUIRE(readExactly(whole.substr(0, length)).value.isAbsent());
    }
}

TEST_CASE("no changed byte does harm") {
    const std::string whole =
        "<?xml version='1.0'?><plist><dict><key>a&#65;</key><array><real>1.5</real><date>"
        "2024-01-01T00:00:00Z</date><data>AQ==</data></array></dict></plist>";
    REQUIRE(readExactly(whole).error == u"");
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string changed = whole;
        for (int byte = 0; byte < 256; ++byte) {
            changed[at] = static_cast<char>(byte);
            const PropertyListResult result = readExactly(changed);
            REQUIRE(result.value.isAbsent() == !result.error.empty());
        }
    }
}

TEST_CASE("dates keep their second in every year") {
    struct Row {
        const char* text;
        double seconds;
    };
    const Row rows[] = {
        {"1970-01-01T00:00:00Z", 0},
        {"1969-12-31T23:59:59Z", -1},
        {"2024-02-29T12:34:56Z", 1709210096},
        {"0001-01-01T00:00:00Z", -62135596800},
        {"0000-01-01T00:00:00Z", -62167219200},
        {"-0001-01-01T00:00:00Z", -62198755200},
        {"-0008-01-01T00:00:59Z", -62419679941},
        {"9999-12-31T23:59:59Z", 253402300799},
        {"+10000-01-01T00:00:00Z", 253402300800},
        {"-285424812-02-20T16:23:28Z", -9007199254740992},
    };
    for (const Row& row : rows) {
        CAPTURE(row.text);
        const std::string element = "<date>" + std::string(row.text) + "</date>";
        const PropertyListResult result = readExactly(listOf(element));
        REQUIRE(result.value.date() != nullptr);
        CHECK(result.value.date()->secondsSince1970 == row.seconds);
        CHECK(written(Date{row.seconds}).find(element) != std::string::npos);
    }
    CHECK(written(Date{-0.6}).find("1969-12-31T23:59:59Z") != std::string::npos);
    CHECK(written(Date{0.4}).find("1970-01-01T00:00:00Z") != std::string::npos);
    for (const char* text :
         {"", "2024-13-01T00:00:00Z", "2023-02-29T00:00:00Z", "2024-01-00T00:00:00Z",
          "2024-01-01T24:00:00Z", "2024-01-01T00:60:00Z", "2024-01-01T00:00:60Z",
          "2024-01-01T00:00:00", "2024-01-01 00:00:00Z", "24-01-01T00:00:00Z",
          "2024-1-01T00:00:00Z", "2024-01-01T00:00:00Zx", "9999999999-01-01T00:00:00Z",
          "--2024-01-01T00:00:00Z", "999999999-01-01T00:00:00Z"}) {
        CAPTURE(text);
        CHECK(readExactly(listOf("<date>" + std::string(text) + "</date>")).value.isAbsent());
    }
}

TEST_CASE("what a property list cannot hold is not written") {
    struct Row {
        const char* why;
        Value value;
    };
    const Row rows[] = {
        {"absent", Value()},
        {"absent in an array", Array{1, Value()}},
        {"a set", Set{1}},
        {"a URL", *URL::fromString(u"a:b")},
        {"an object", Value::boxed(Date{1})},
        {"a key that is a number", Dictionary{{1, 2}}},
        {"a control character", u"\u0001"},
        {"a zero", String(1, u'\0')},
        {"a noncharacter", u"\uFFFE"},
        {"an unpaired high surrogate", String(1, char16_t{0xD800})},
        {"an unpaired low surrogate", Dictionary{{String(1, char16_t{0xDC00}), 1}}},
        {"a date that is not a number", Date{std::numeric_limits<double>::quiet_NaN()}},
        {"a date too far away", Date{1e300}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const PropertyListData list = writePropertyList(row.value);
        CHECK_FALSE(list.data.has_value());
        CHECK(list.error != u"");
    }
}

TEST_CASE("lists nest to the limit and no deeper") {
    const auto nested = [](int levels) {
        Value value = Array();
        for (int i = 1; i < levels; ++i) value = Array{value, 1};
        return value;
    };
    testing::onSmallStack([&] {
        const Value deepest = nested(kPropertyListDepthLimit);
        CHECK(readExactly(written(deepest)).value == deepest);
        CHECK_FALSE(writePropertyList(nested(kPropertyListDepthLimit + 1)).data.has_value());
        const std::string open = repeated("<array>", kPropertyListDepthLimit + 1);
        const std::string close = repeated("</array>", kPropertyListDepthLimit + 1);
        CHECK(readExactly(listOf(open + close)).value.isAbsent());
    });
    const Value circle = Value::mutableArray({1});
    circle.mutableArray()->push_back(circle);
    CHECK_FALSE(writePropertyList(circle).data.has_value());
    circle.mutableArray()->clear();
}

TEST_CASE("containers can be changed later when asked for") {
    const std::string bytes = written(Dictionary{{u"a", Array{1}}});
    const Value fixed = readExactly(bytes).value;
    CHECK(fixed.mutableDictionary() == nullptr);
    const Value open = readPropertyList(bytesOf(bytes), PropertyListContainers::Mutable).value;
    REQUIRE(open.mutableDictionary() != nullptr);
    CHECK(open.dictionary()->objectForKey(u"a").mutableArray() != nullptr);
    CHECK(open == fixed);
}

TEST_CASE("a host with a decimal comma changes nothing") {
    const testing::CommaLocale locale;
    CHECK(written(0.75).find("<real>0.75</real>") != std::string::npos);
    CHECK(readExactly(listOf("<real>0.75</real>")).value == Value(0.75));
}

}  // namespace QZCore
