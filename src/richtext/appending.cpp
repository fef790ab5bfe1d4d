#include "QZCore/codecs/formatting.h"
#include "QZCore/codecs/transforming.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {

void RichText::appendString(StringView string) { appendAttributedString(RichText(string)); }

void RichText::appendFormat(StringView format, std::initializer_list<Value> arguments) {
    appendString(stringWithFormat(format, arguments));
}

void RichText::trimWhitespace() {
    String trimmed = string();
    QZCore::trimWhitespace(trimmed);
    deleteCharactersInRange({0, length() - trimmed.size()});
}

}  // namespace QZCore
