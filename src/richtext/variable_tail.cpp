#include "richtext/variable_tail.h"

#include <algorithm>
#include <array>

#include "QZCore/richtext/variables.h"

namespace QZCore {
namespace {

constexpr StringView kWithTime = u"WithTime";
constexpr StringView kPatternMark = u"Format:";

constexpr std::array<StringView, 6> kDateStyles{u"Short", u"Medium",  u"Long",
                                                u"Full",  u"ISO8601", u"RFC3339"};

}  // namespace

VariableTail parsedTail(StringView tail) {
    VariableTail parts;
    const std::size_t slash = tail.find(u'/');
    parts.format = tail.substr(0, slash);
    if (slash != StringView::npos) {
        parts.letterCase = tail.substr(slash + 1);
        // Deliberately without the character before the slash: with a blank
        // there, a format stays whole.
        if (!parts.format.empty()) parts.format.remove_suffix(1);
    }
    parts.withTime = parts.format.starts_with(kWithTime);
    if (parts.withTime) parts.format.remove_prefix(kWithTime.size());
    return parts;
}

bool isAcceptedFormat(StringView format, std::uint32_t options) {
    if (format.empty() || patternOfFormat(format)) return true;
    return (options & kVariableDateStyles) != 0 &&
           std::find(kDateStyles.begin(), kDateStyles.end(), format) != kDateStyles.end();
}

std::optional<StringView> patternOfFormat(StringView format) {
    if (!format.starts_with(kPatternMark)) return std::nullopt;
    return format.substr(kPatternMark.size());
}

}  // namespace QZCore
