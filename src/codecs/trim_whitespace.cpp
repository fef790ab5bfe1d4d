#include <algorithm>

#include "QZCore/codecs/transforming.h"

namespace QZCore {

void trimWhitespace(String& text) {
    text.erase(text.begin(), std::ranges::find_if_not(text, isWhitespaceOrNewline));
}

}  // namespace QZCore
