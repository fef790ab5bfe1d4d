#include "QZCore/richtext/variables.h"

#include <random>
#include <thread>

#include "QZCore/color/color.h"
#include "QZCore/dates/calendar.h"
#include "QZCore/dates/file_size_formatter.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/platform/regex.h"
#include "QZCore/richtext/formatted_text.h"
#include "QZCore/richtext/rich_text.h"
#include "richtext/variable_text.h"
#include "support/locale_scope.h"
#include "support/preference_setting.h"
#include "support/printing.h"
#include "support/time_scope.h"

namespace QZCore {
namespace {

using testing::LocaleScope;
using testing::PreferenceSetting;
using testing::ZoneScope;

struct Replaced {
    String text;
    std::int64_t count = 0;

    friend bool operator==(const Replaced&, const Replaced&) = default;
};

std::ostream& operator<<(std::ostream& stream, const Replaced& replaced) {
    return stream << replaced.count << " in " << toUTF8(replaced.text);
}

/// What becomes of a template when `name` has a value.
Replaced replaced(StringView text, StringView name, const Value& value, std::uint32_t options = 0) {
    RichText rich(text);
    Dictionary dictionary;
    dictionary.setObject(value, name);
    const auto count = rich.replaceVariablesWithDictionary(dictionary, u"<<", u">>", options);
    return {rich.string(), count};
}

}  // namespace

TEST_CASE("variables take strings in a letter case, and numbers") {
    struct Row {
        const char* why;
        StringView text;
        StringView name;
        Value value;
        StringView result;
        std::int64_t count;
    };
    const Row rows[] = {
        {"a string", u"Hello <<Name>>", u"Name", u"ann", u"Hello ann", 1},
        {"every occurrence", u"<<Name>> <<Name>>", u"Name", u"ann", u"ann ann", 2},
        {"upper case", u"<<Name/uppercase>>", u"Name", u"ann b", u"ANN B", 1},
        {"lower case", u"<<Name/lowercase>>", u"Name", u"Ann B", u"ann b", 1},
        {"capitalized", u"<<Name/capitalize>>", u"Name", u"ann de BEER", u"Ann De Beer", 1},
        {"no such case", u"<<Name/reverse>>", u"Name", u"Ann", u"Ann", 1},
        {"the first slash counts", u"<<Name/a/uppercase>>", u"Name", u"Ann", u"Ann", 1},
        {"one character before the slash is dropped", u"<<Namex/uppercase>>", u"Name", u"a", u"A",
         1},
        {"two are a format", u"<<Namexy/uppercase>>", u"Name", u"a", u"<<Namexy/uppercase>>", 0},
        {"a string ignores formats", u"<<NameFormat:yyyy>>", u"Name", u"a", u"a", 1},
        {"an integer", u"<<N/uppercase>>", u"N", 42, u"42", 1},
        {"a real number", u"<<N>>", u"N", 0.1, u"0.1", 1},
        {"no text for it", u"<<N>>", u"N", Array{1}, u"<<N>>", 0},
        {"the tail has no character of the suffix", u"<<N>a>>", u"N", 1, u"<<N>a>>", 0},
        {"unfinished ones are passed over", u"<<N <<N/uppercase>>", u"N", u"a",
         u"<<N <<N/uppercase>>", 0},
        {"a name with pattern characters is a pattern", u"<<N.e>> <<Nxe>>", u"N.e", 7, u"7 7", 2},
        {"but must occur as written", u"<<Nxe>>", u"N.e", 7, u"<<Nxe>>", 0},
        {"the tail is behind the name's groups", u"<<(N)/uppercase>> <<N/uppercase>>", u"(N)", u"a",
         u"<<(N)/uppercase>> A", 1},
        {"a pattern that is none", u"<<N(>>", u"N(", 7, u"<<N(>>", 0},
        {"half a surrogate pair is no name", u"<<\xD83D>> <<\U0001F642>>", u"\xD83D", 7,
         u"<<\xD83D>> <<\U0001F642>>", 0},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(replaced(row.text, row.name, row.value) == Replaced{String(row.result), row.count});
    }
    CHECK(replaced(u"<<Q>>", u"Q", u"a b&c", kVariablePercentEncoding).text.find(u"%20") == 1);
    RichText text(u"a \U0001F642N/uppercase\U0001F643");
    CHECK(text.replaceVariablesWithDictionary(Dictionary{{u"N", u"x"}}, u"\U0001F642",
                                              u"\U0001F643", 0) == 1);
    CHECK(text.string() == u"a X");
    CHECK(text.replaceVariablesWithDictionary(Dictionary{{u"a", u"x"}}, u"", u"X", 0) == 0);
    CHECK(text.replaceVariablesWithDictionary(Dictionary{{u" ", u"x"}}, u"a", u"", 0) == 0);
}

TEST_CASE("dates follow the name, the format and the preferences") {
    const ZoneScope berlin(u"Europe/Berlin");
    const LocaleScope british(u"en_GB");
    const Date date = *gregorianCalendar().dateFromComponents(
        DateComponents::dateComponentsWithYear(2024, 3, 1, 0, 30, 0));
    struct Row {
        const char* why;
        StringView name;
        StringView tail;
        StringView result;  // empty where the variable stays
    };
    const Row rows[] = {
        {"medium by default", u"Date", u"", u"1 Mar 2024"},
        {"long", u"Date", u"Long", u"1 March 2024"},
        {"a short date with a short time", u"Date", u"WithTimeShort", u"01/03/2024, 00:30"},
        {"a time alone", u"Time", u"Short", u"00:30"},
        {"a medium date and time", u"DateTime", u"", u"1 Mar 2024, 00:30:00"},
        {"with time and no format", u"Date", u"WithTime", u"1 Mar 2024, 00:30:00"},
        {"a medium time beside a long date", u"DateTime", u"Long", u"1 March 2024 at 00:30:00"},
        {"a long time beside a full date", u"DateTime", u"Full",
         u"Friday, 1 March 2024 at 00:30:00 CET"},
        {"a long time alone", u"Time", u"Long", u"00:30:00 CET"},
        {"neither date nor time", u"Due", u"WithTime", u"00:30:00"},
        {"a pattern", u"Due", u"Format:yyyy", u"2024"},
        {"a day", u"Date", u"ISO8601", u"2024-03-01"},
        {"a time", u"Date", u"WithTimeISO8601", u"2024-03-01T00:30:00+01:00"},
        {"in GMT", u"DateTime", u"RFC3339", u"2024-02-29T23:30:00Z"},
        {"an internet format within a pattern", u"Date", u"Format:RFC3339", u"2024-02-29"},
        {"the character before the slash is lost", u"Date", u"Short/uppercase", u""},
        {"unless it is a blank; dates have no letter case", u"Date", u"Long /uppercase",
         u"1 March 2024"},
        {"no such format", u"Date", u"short", u""},
        {"a pattern with letters that mean nothing", u"Date", u"Format:J", u""},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const String variable = u"<<" + String(row.name) + String(row.tail) + u">>";
        const bool stays = row.result.empty();
        CHECK(replaced(variable, row.name, date, kVariableDateStyles) ==
              Replaced{stays ? variable : String(row.result), stays ? 0 : 1});
    }
    CHECK(replaced(u"<<DateLong>>", u"Date", date) == Replaced{u"<<DateLong>>", 0});
    CHECK(replaced(u"<<DateFormat:yyyy>>", u"Date", date) == Replaced{u"2024", 1});
    CHECK(replaced(u"<<Due>>", u"Due", date) == Replaced{u"", 1});
    // One formatter serves all: a pattern must not outlive its variable.
    CHECK(replaced(u"<<DateLong>> <<DateFormat:yyyy>> <<Date>>", u"Date", date,
                   kVariableDateStyles) == Replaced{u"1 March 2024 2024 1 Mar 2024", 3});
    const PreferenceSetting longTime(u"Long Date With Time Medium", false);
    const PreferenceSetting fullTime(u"Full Date With Time Medium", true);
    CHECK(replaced(u"<<DateTimeLong>> <<DateTimeFull>>", u"DateTime", date, kVariableDateStyles)
              .text == u"1 March 2024 at 00:30:00 CET Friday, 1 March 2024 at 00:30:00");
}

TEST_CASE("replaced URLs become links, and the rest of the text stays as it is") {
    const PreferenceSetting color(u"Link Color", u"#ff0000");
    RichText text(u"a<<U>>b<<V>>");
    const TextAttributes strong({{NSUnderlineColorAttributeName, u"x"}});
    text.addAttributes(strong, {1, 5});
    const Dictionary dictionary{{u"U", u"https://a.b/c"}, {u"V", u"no url://<>"}, {u"W", 1}};
    CHECK(text.replaceVariablesWithDictionary(dictionary, u"<<", u">>", 0) == 2);
    CHECK(text.string() == u"ahttps://a.b/cbno url://<>");
    const TextAttributes linked = text.attributesAtIndex(1);
    CHECK(*linked.link() == Value(URL{u"https://a.b/c"}));
    CHECK(linked.foregroundColor()->isEqualByString(Color::colorForHexString(u"ff0000")));
    CHECK(linked.underlineStyle() == 1);
    CHECK(*linked.find(NSUnderlineColorAttributeName) == Value(u"x"));
    CHECK(text.attributesAtIndex(15).link() == nullptr);
    CHECK(text.numberOfRuns() == 3);

    const PreferenceSetting ignored(u"Ignore Variable Replacements", true);
    CHECK(replaced(u"<<N>>", u"N", 1) == Replaced{u"<<N>>", 0});
}

TEST_CASE("names without pattern characters are found like the expression they stand for") {
    std::mt19937 random(5);
    const StringView pieces[] = {u"<", u"<<", u"N", u">", u">>", u"/", u"x"};
    for (int i = 0; i < 3000; ++i) {
        String text;
        for (auto length = random() % 24; length > 0; --length) text += pieces[random() % 7];
        const StringView suffix = pieces[3 + random() % 2];
        const auto expression =
            RegularExpression::compile(u"<<N([^" + String(suffix) + u"]*)" + String(suffix));
        const auto expected = expression->matchesInString(text);
        const auto found = VariableText(text, u"<<", suffix).matches(u"N");
        CAPTURE(text);
        REQUIRE(found.size() == expected.size());
        for (std::size_t k = 0; k < found.size(); ++k) {
            REQUIRE(found[k].whole == expected[k].range());
            REQUIRE(found[k].tail == expected[k].group(1));
        }
    }
}

TEST_CASE("many names are replaced as if one after another") {
    std::mt19937 random(7);
    const StringView pieces[] = {u"<", u"<<", u"N", u"M", u">", u">>", u"N>>", u""};
    const auto text = [&](std::size_t most) {
        String made;
        for (auto length = random() % most; length > 0; --length) made += pieces[random() % 8];
        return made;
    };
    for (int i = 0; i < 2000; ++i) {
        const StringView prefix = pieces[random() % 2];
        const Dictionary values{{u"N", text(4)}, {u"<", text(4)}, {u"M", text(4)}, {u"", text(4)}};
        RichText together(text(30));
        RichText apart = together;
        CAPTURE(together.string());
        const auto count = together.replaceVariablesWithDictionary(values, prefix, u">", 0);
        std::int64_t sum = 0;
        for (const auto& [name, value] : values) {
            const Dictionary one{{name, value}};
            sum += apart.replaceVariablesWithDictionary(one, prefix, u">", 0);
        }
        REQUIRE(together.string() == apart.string());
        REQUIRE(count == sum);
    }
}

TEST_CASE("values that hold each other do not fill the memory") {
    Dictionary values;
    for (char16_t name = u'A'; name <= u'Z'; ++name) {
        const String next{u'<', static_cast<char16_t>(name + 1), u'>'};
        values.setObject(next + next + next + next, StringView(&name, 1));
    }
    RichText text(u"<A>");
    CHECK(text.replaceVariablesWithDictionary(values, u"<", u">", 0) > 0);
    CHECK(text.length() <= std::size_t{1} << 24);
}

TEST_CASE("several threads fill templates at once") {
    const LocaleScope british(u"en_GB");
    std::vector<std::thread> threads(4);
    for (std::thread& thread : threads) {
        thread = std::thread([] {
            for (int i = 0; i < 50; ++i) {
                const Date day{i * 86400.0};
                CHECK(replaced(u"<<DateFormat:d zzzz>>", u"Date", day).count == 1);
                CHECK(replaced(u"<<DateTime>>", u"DateTime", day).count == 1);
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
}

TEST_CASE("long templates are filled in linear time") {
    String text;
    for (int i = 0; i < 200'000; ++i) text += u"<<N <<M>> ";
    RichText rich(text);
    CHECK(rich.replaceVariablesWithDictionary(Dictionary{{u"N", 1}, {u"M", u"m"}}, u"<<", u">>",
                                              0) == 200'000);
}

TEST_CASE("a formatter's text takes the given attributes") {
    const TextAttributes attributes({{NSUnderlineColorAttributeName, u"x"}});
    CHECK(attributedStringForObjectValue(QZFileSizeFormatter(), 1000, attributes) ==
          RichText(u"1 KB", attributes));
}

}  // namespace QZCore
