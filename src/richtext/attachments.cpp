#include <algorithm>

#include "QZCore/richtext/rich_text.h"
#include "richtext/store.h"

namespace QZCore {

std::size_t RichText::numberOfAttachments() const {
    std::size_t count = 0;
    for (std::size_t piece = 0; piece < store_->numberOfPieces(); ++piece) {
        const String& text = store_->piece(piece).text();
        count += static_cast<std::size_t>(std::ranges::count(text, kAttachmentCharacter));
    }
    return count;
}

void RichText::removeAttachments() {
    const String text = string();
    // From the last to the first, so that the positions before stay.
    for (std::size_t end = text.size(); end > 0;) {
        const std::size_t last = text.rfind(kAttachmentCharacter, end - 1);
        if (last == String::npos) return;
        const std::size_t before = text.find_last_not_of(kAttachmentCharacter, last);
        end = before == String::npos ? 0 : before + 1;
        deleteCharactersInRange({end, last + 1 - end});
    }
}

}  // namespace QZCore
