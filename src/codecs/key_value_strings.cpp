#include <optional>
#include <utility>
#include <vector>

#include "QZCore/codecs/dictionaries.h"
#include "codecs/literal_search.h"

namespace QZCore {
namespace {

std::vector<StringView> piecesBetween(StringView text, StringView separator) {
    std::vector<StringView> pieces;
    std::size_t start = 0;
    LiteralSearch search(text, separator);
    for (auto at = search.next(); at != kNotFound; at = search.next()) {
        pieces.push_back(text.substr(start, at - start));
        start = at + separator.size();
        search.skipOverlaps();
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

/// What stands before and behind the one separator of `text`; nothing when it
/// holds none or more.
std::optional<std::pair<StringView, StringView>> pairOf(StringView text, StringView separator) {
    const std::vector<StringView> pieces = piecesBetween(text, separator);
    if (pieces.size() != 2) return std::nullopt;
    return std::pair(pieces[0], pieces[1]);
}

}  // namespace

Dictionary dictionaryWithQueryString(StringView queryString) {
    Dictionary made;
    for (const StringView part : piecesBetween(queryString, u"&")) {
        if (const auto pair = pairOf(part, u"=")) made.setObject(pair->second, pair->first);
    }
    return made;
}

Dictionary dictionaryWithKeyObjectString(StringView string, StringView keyValueSeparatedBy,
                                         StringView keysSeparatedBy) {
    Dictionary made;
    for (const StringView part : piecesBetween(string, keysSeparatedBy)) {
        const auto pair = pairOf(part, keyValueSeparatedBy);
        if (!pair) continue;
        const StringView key = trimmedOfWhitespace(pair->first);
        const StringView value = trimmedOfWhitespace(pair->second);
        if (!key.empty() && !value.empty()) made.setObject(value, key);
    }
    return made;
}

Dictionary dictionaryWithKeyObjectString(StringView string, StringView separatedByString) {
    if (string.starts_with(separatedByString)) string.remove_prefix(separatedByString.size());
    const std::vector<StringView> pieces = piecesBetween(string, separatedByString);
    return dictionaryWithKeyObjectArray(Array(pieces.begin(), pieces.end()));
}

Dictionary dictionaryWithKeyObjectArray(const Array& array) {
    Dictionary made;
    if (array.size() % 2 != 0) return made;
    for (std::size_t i = 0; i < array.size(); i += 2) made.setObject(array[i + 1], array[i].copy());
    return made;
}

}  // namespace QZCore
