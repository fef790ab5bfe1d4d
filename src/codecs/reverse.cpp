#include "QZCore/codecs/transforming.h"
#include "platform/composed_characters.h"

namespace QZCore {

String reverse(StringView text) {
    String reversed(text.size(), u'\0');
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = composedCharacterEnd(text, start);
        text.copy(reversed.data() + (text.size() - end), end - start, start);
        start = end;
    }
    return reversed;
}

}  // namespace QZCore
