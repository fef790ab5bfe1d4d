#include "fill.h"

#include "QZCore/dates/iso8601.h"
#include "QZCore/foundation/property_list.h"
#include "QZCore/richtext/rich_text.h"
#include "QZCore/richtext/variables.h"
#include "json_reader.h"

namespace qznote {

using namespace QZCore;

namespace {

/// JSON has no dates.
Dictionary withDates(const Dictionary& texts) {
    Dictionary values;
    for (const auto& [name, value] : texts) {
        const String* text = value.string();
        const auto date =
            text != nullptr ? dateFromISO8601String(*text, *sharedTimeZone()) : std::nullopt;
        values.setObject(date ? Value(*date) : value, name);
    }
    return values;
}

}  // namespace

std::optional<Dictionary> readValues(DataView bytes) {
    const Value list = readPropertyList(bytes).value;
    if (list.dictionary() != nullptr) return *list.dictionary();
    const Value json = readJson(textOf(bytes));
    if (json.dictionary() != nullptr) return withDates(*json.dictionary());
    return std::nullopt;
}

std::string filledTemplate(StringView text, const Dictionary& values, const VariableForm& form) {
    const std::uint32_t options =
        form.percentEncodes ? kVariableDateStyles | kVariablePercentEncoding : kVariableDateStyles;
    RichText filled(text);
    filled.replaceVariablesWithDictionary(values, fromUTF8(form.prefix), fromUTF8(form.suffix),
                                          options);
    return toUTF8(filled.string());
}

}  // namespace qznote
