#include "QZCore/codecs/parsing.h"
#include "codecs/folded_search.h"

namespace QZCore {
namespace {

bool canFillTag(const Value& value) {
    return value.string() != nullptr || value.url() != nullptr || value.isNumber();
}

String filled(StringView text, StringView tag, StringView value) {
    String result;
    FoldedSearch search(text, tag, {.ignoresCase = true});
    std::size_t copied = 0;
    while (const auto found = search.next()) {
        result.append(text.substr(copied, found->location - copied)).append(value);
        copied = found->end();
        search.skipOverlaps();
    }
    return result.append(text.substr(copied));
}

}  // namespace

String stringFromTemplate(StringView stringTemplate, const Dictionary& withTagValues) {
    String text(stringTemplate);
    for (const auto& [key, value] : withTagValues) {
        const String* tag = key.string();
        if (tag != nullptr && canFillTag(value)) text = filled(text, *tag, value.stringValue());
    }
    return text;
}

}  // namespace QZCore
