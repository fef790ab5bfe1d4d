#include "QZCore/markdown/emoji.h"

#include <algorithm>
#include <array>

namespace QZCore {
namespace {

// clang-format off
constexpr auto kTable = std::to_array<EmojiShortcode>({
#include "markdown/emoji_table.inc"
});
// clang-format on

static_assert(kTable.size() == 845);
static_assert(std::ranges::is_sorted(kTable, {}, &EmojiShortcode::code),
              "emojiForShortcode searches by halves");

}  // namespace

std::span<const EmojiShortcode> emojiCheatSheetToUnicode() { return kTable; }

std::optional<StringView> emojiForShortcode(StringView code) {
    const auto at = std::ranges::lower_bound(kTable, code, {}, &EmojiShortcode::code);
    if (at == kTable.end() || at->code != code) return std::nullopt;
    return at->emoji;
}

}  // namespace QZCore
