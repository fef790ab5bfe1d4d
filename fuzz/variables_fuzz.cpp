// Variables in templates, beside the regular expressions that define them.
#include <algorithm>

#include "QZCore/codecs/transforming.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/platform/fonts.h"
#include "QZCore/platform/regex.h"
#include "QZCore/richtext/rich_text.h"
#include "QZCore/richtext/variables.h"
#include "platform/letter_case.h"
#include "require.h"

using namespace QZCore;

namespace {

/// A template with the values of two names.
struct Task {
    String prefix;
    String suffix;
    String firstName;
    String firstValue;
    String secondName;
    String secondValue;
    String text;
    std::uint32_t options = 0;
};

/// ASCII, and behind it surrogates of both kinds.
String unitsOf(const std::uint8_t* data, std::size_t size) {
    String units;
    for (std::size_t i = 0; i < size; ++i) {
        const char16_t surrogate = data[i] < 0xC0 ? 0xD800 : 0xDC00;
        units += data[i] < 0x80 ? char16_t{data[i]} : static_cast<char16_t>(surrogate + data[i]);
    }
    return units;
}

String takeLine(StringView& rest) {
    const String line(rest.substr(0, rest.find(u'\n')));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    return line;
}

Task readTask(StringView script) {
    Task task;
    for (String* field : {&task.prefix, &task.suffix, &task.firstName, &task.firstValue,
                          &task.secondName, &task.secondValue}) {
        *field = takeLine(script);
    }
    task.options = script.empty() ? 0 : script.front() & 3U;
    task.text = script;
    // Patterns may need more than linear time.
    constexpr StringView kMarks = u"*+?{}(|";
    const String names = task.firstName + task.secondName;
    if (names.find_first_of(kMarks) != String::npos)
        task.text.resize(std::min<std::size_t>(task.text.size(), 60));
    return task;
}

String escaped(StringView text) {
    constexpr StringView kMarks = u"\\*?+[](){}^$|.-&/#\"'!";
    String result;
    for (const char16_t unit : text) {
        if (kMarks.find(unit) != StringView::npos) result += u'\\';
        result += unit;
    }
    return result;
}

/// What a variable with the given tail becomes.
std::optional<String> replacement(StringView value, StringView tail, std::uint32_t options) {
    const std::size_t slash = tail.find(u'/');
    String format(tail.substr(0, slash));
    const StringView letterCase = slash == StringView::npos ? u"" : tail.substr(slash + 1);
    if (slash != StringView::npos) format = format.substr(0, slash == 0 ? 0 : slash - 1);
    if (format.starts_with(u"WithTime")) format.erase(0, 8);
    bool isStyle = false;
    for (const StringView style : {u"Short", u"Medium", u"Long", u"Full", u"ISO8601", u"RFC3339"}) {
        if ((options & kVariableDateStyles) != 0 && format == style) isStyle = true;
    }
    if (!format.empty() && !isStyle && !format.starts_with(u"Format:")) return std::nullopt;
    String text(value);
    if (letterCase == u"uppercase") text = textInCase(value, LetterCase::Upper);
    if (letterCase == u"lowercase") text = textInCase(value, LetterCase::Lower);
    if (letterCase == u"capitalize") text = textInCase(value, LetterCase::Capitalized);
    return (options & kVariablePercentEncoding) != 0 ? percentEncodeQuery(text) : text;
}

/// Replaces the variables of one name. Returns how many there were.
std::int64_t replaceByExpression(Task& task, StringView name, StringView value) {
    if (task.text.find(task.prefix + String(name)) == String::npos) return 0;
    const String end = escaped(task.suffix);
    const auto expression = RegularExpression::compile(escaped(task.prefix) + String(name) +
                                                       u"([^" + end + u"]*)" + end);
    if (!expression) return 0;
    const auto matches = expression->matchesInString(task.text);
    std::int64_t count = 0;
    for (auto match = matches.rbegin(); match != matches.rend(); ++match) {
        const Range tail = match->group(expression->numberOfCaptureGroups());
        const auto text = replacement(
            value, StringView(task.text).substr(tail.location, tail.length), task.options);
        if (!text) continue;
        task.text.replace(match->range().location, match->range().length, *text);
        ++count;
    }
    return count;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool prepared = (setSharedFontCatalog(makeInMemoryFontCatalog()), true);
    require(prepared);
    Task task = readTask(unitsOf(data, size));
    const Dictionary values{{task.firstName, task.firstValue}, {task.secondName, task.secondValue}};
    RichText text(task.text);
    const auto count =
        text.replaceVariablesWithDictionary(values, task.prefix, task.suffix, task.options);

    std::int64_t expected = 0;
    const bool isUsable = !task.prefix.empty() && !task.suffix.empty();
    for (const auto& [name, value] : values) {
        if (!isUsable || task.text.find(task.prefix) == String::npos) break;
        expected += replaceByExpression(task, *name.string(), *value.string());
    }
    require(count == expected && text.string() == task.text);
    return 0;
}
