#include "QZCore/codecs/property_list_data.h"

#include "QZCore/foundation/log.h"
#include "QZCore/foundation/property_list.h"

namespace QZCore {
namespace {

void logFailure(StringView conversion, StringView reason) {
    logLine(String(u"Error converting ").append(conversion).append(u": ").append(reason));
}

std::optional<Data> written(const Value& list, StringView conversion) {
    PropertyListData result = writePropertyList(list);
    if (!result.data) logFailure(conversion, result.error);
    return std::move(result.data);
}

}  // namespace

std::optional<Dictionary> dictionaryWithData(DataView data) {
    const PropertyListResult list = readPropertyList(data);
    if (const Dictionary* dictionary = list.value.dictionary()) return *dictionary;
    logFailure(u"data to NSDictionary",
               list.value.isAbsent() ? StringView(list.error) : u"the list is no dictionary");
    return std::nullopt;
}

std::optional<Array> arrayWithData(DataView data) {
    const PropertyListResult list = readPropertyList(data);
    if (const Array* array = list.value.array()) return *array;
    logFailure(u"data to NSArray",
               list.value.isAbsent() ? StringView(list.error) : u"the list is no array");
    return std::nullopt;
}

std::optional<Data> dataRepresentation(const Dictionary& dictionary) {
    return written(dictionary, u"NSDictionary to data");
}

std::optional<Data> dataRepresentation(const Array& array) {
    return written(array, u"NSArray to data");
}

}  // namespace QZCore
